// The Lua module in the stock interpreter, and in two states of one process.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/lua_state.h"
#include "tests/host/process.h"

namespace velmohelp::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

Outcome RunStockLua(const std::string& script) {
  return RunProgram({"lua5.4", "-e", script}, "",
                    {"LUA_CPATH_5_4=" VELMO_LUA_CPATH, VELMO_LUA_PRELOAD});
}

TEST(LuaModule, GivesTheStockInterpreterBothNamespaces) {
  const Outcome outcome = RunStockLua(
      "local help = require 'velmohelp' "
      "print(help.LxHelp == LxHelp, help.LxHelpWorker == LxHelpWorker) "
      "print(LxHelp.displayClientPage 'x', "
      "LxHelpWorker.initializeClient('', 'x'))");
  EXPECT_EQ(outcome.out, "true\ttrue\ninvalidInitialization\tinvalidArgument\n")
      << outcome.error;
  EXPECT_EQ(outcome.status, 0);
}

TEST(LuaModule, HoldsTheNamedResultCodes) {
  const Outcome outcome = RunStockLua(
      "local help = require 'velmohelp' "
      "print(LxHelp.displayClientPage 'x' == "
      "help.DisplayPageReturnCode.invalidInitialization, "
      "help.InitReturnCode.invalidConfig.value)");
  EXPECT_EQ(outcome.out, "true\t7\n") << outcome.error;
}

TEST(LuaModule, MakesAWrongArgumentAScriptError) {
  const Outcome outcome =
      RunStockLua("require 'velmohelp' LxHelp.displayClientPage(print)");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.error,
              AllOf(HasSubstr("bad argument #1 to 'displayClientPage' (string "
                              "expected, got function)"),
                    HasSubstr("stack traceback")));
}

void Require(LuaState& state) {
  state.Run("package.cpath = '" VELMO_LUA_CPATH "'");
  ASSERT_EQ(state.Run("return type(require 'velmohelp')"), "table");
}

TEST(LuaModule, ServesTwoStatesOfOneProcess) {
  LuaState first;
  LuaState second;
  Require(first);
  EXPECT_EQ(second.Run("return LxHelp"), "nil");
  Require(second);
  first.Run("LxHelp = nil");
  EXPECT_EQ(first.Run("return LxHelp"), "nil");
  EXPECT_EQ(second.Run("return LxHelp.displayClientPage('x')"),
            "invalidInitialization");
}

TEST(LuaModule, ServesAStateAfterAnotherHasGone) {
  for (int i = 0; i < 3; ++i) {
    LuaState state;
    Require(state);
    EXPECT_EQ(state.Run("return LxHelpWorker.initializeClient('', 'x')"),
              "invalidArgument");
  }
}

TEST(LuaModule, FailsWhenTheLibraryWasLoadedWithoutAHostBefore) {
  const Outcome outcome =
      RunProgram({VELMO_BARE_PROGRAM, VELMO_PLUGIN, VELMO_LUA_CPATH});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out,
              HasSubstr("libvelmohelp has registered no 'LxHelp'"));
}

}  // namespace
}  // namespace velmohelp::testing
