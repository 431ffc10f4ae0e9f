// A test with a machine that it describes, which it hands to what it tests.
#ifndef TESTS_SUPPORT_SCRIPTED_TEST_H_
#define TESTS_SUPPORT_SCRIPTED_TEST_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/scripted/scripted_machine.h"

namespace velmohelp::testing {

class ScriptedTest : public ::testing::Test {
 protected:
  ScriptedMachine machine;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_SCRIPTED_TEST_H_
