// A program that links the client and offers no script engine.
#include <gtest/gtest.h>
#include <velmohelp/script_host.h>

#include "tests/exports/client_doubles.h"

namespace velmohelp::testing {
namespace {

TEST(BindingWithoutHost, LoadsNothingAndAnswersZero) {
  EXPECT_EQ(private_load_LxHelp(nullptr), 0);
  EXPECT_EQ(private_load_LxHelpWorker(nullptr), 0);
  EXPECT_TRUE(calls.empty());
}

}  // namespace
}  // namespace velmohelp::testing
