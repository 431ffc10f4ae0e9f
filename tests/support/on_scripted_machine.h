// The exported functions on a machine that a test describes, with the client's
// state as at load.
#ifndef TESTS_SUPPORT_ON_SCRIPTED_MACHINE_H_
#define TESTS_SUPPORT_ON_SCRIPTED_MACHINE_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "exports/state.h"
#include "platform/scripted/scripted_machine.h"
#include "tests/support/this_machine.h"

namespace velmohelp::testing {

class OnScriptedMachine : public ::testing::Test {
 protected:
  ScriptedMachine machine;

 private:
  const OnMachine on_machine_{machine};
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_ON_SCRIPTED_MACHINE_H_
