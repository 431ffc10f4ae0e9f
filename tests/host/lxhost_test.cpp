// The host program as a process, with the built plug-in.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/process.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

Outcome RunScript(const std::string& script, const Words& arguments = {}) {
  const TemporaryDirectory folder;
  Words command = {VELMO_LXHOST, folder.Write("script.lua", script)};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return RunProgram(command);
}

TEST(Lxhost, RunsAScriptThatCallsBothFunctions) {
  const Outcome outcome = RunScript(
      "local r = LxHelp.displayClientPage('') "
      "print(r, r.value, r.type) "
      "r = LxHelpWorker.initializeClient('', 'x') "
      "print(r, r.value, r.type)");
  EXPECT_EQ(outcome.out,
            "invalidInitialization\t6\tDisplay Page Return Code\n"
            "invalidArgument\t1\tInit Return Code\n");
  EXPECT_EQ(outcome.error, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST(Lxhost, RegistersOneFunctionInEachNamespace) {
  const Outcome outcome = RunScript(
      "for k in pairs(LxHelp) do print(k) end "
      "for k in pairs(LxHelpWorker) do print(k) end");
  EXPECT_EQ(outcome.out, "displayClientPage\ninitializeClient\n");
}

TEST(Lxhost, OffersTheModuleToo) {
  const Outcome outcome = RunScript(
      "local help = require 'velmohelp' "
      "print(help.LxHelp == LxHelp, help.LxHelpWorker == LxHelpWorker, "
      "LxHelpWorker.initializeClient(' ', 'x') == "
      "help.InitReturnCode.invalidArgument)");
  EXPECT_EQ(outcome.out, "true\ttrue\ttrue\n") << outcome.error;
}

TEST(Lxhost, HandsTheScriptItsArguments) {
  const Outcome outcome = RunScript(
      "print(arg[0]:match('[^/]*$'), arg[1], arg[2], #arg) print(...) "
      "print(arg[-1]:match('[^/]*$'), arg[-2])",
      {"a b", ""});
  EXPECT_EQ(outcome.out, "script.lua\ta b\t\t2\na b\t\nlxhost\tnil\n");
}

TEST(Lxhost, ReportsAFailingScriptWithATraceback) {
  const Outcome outcome =
      RunScript("local function deep()\n  error 'boo'\nend\ndeep()");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.error,
              AllOf(StartsWith("lxhost: "), HasSubstr("script.lua:2: boo\n"),
                    HasSubstr("stack traceback:"), HasSubstr("'deep'")));
}

TEST(Lxhost, NamesFunctionAndPositionOfAWrongArgument) {
  const Outcome outcome = RunScript("LxHelpWorker.initializeClient('x', {})");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.error,
              HasSubstr("script.lua:1: bad argument #2 to 'initializeClient' "
                        "(string expected, got table)"));
}

TEST(Lxhost, ReportsAnErrorThatIsNoString) {
  EXPECT_THAT(RunScript("error(nil)").error, StartsWith("lxhost: nil\n"));
  EXPECT_THAT(RunScript("error({})").error, StartsWith("lxhost: table: "));
  const Outcome outcome = RunScript(
      "error(setmetatable({}, {__tostring = function() error(1) end}))");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.error, StartsWith("lxhost: "));
}

TEST(Lxhost, ReportsAScriptThatIsNoLua) {
  const Outcome outcome = RunScript("x x");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.error, HasSubstr("script.lua:1: syntax error near 'x'"));
}

TEST(Lxhost, ReportsAScriptThatIsNotThere) {
  const Outcome outcome = RunProgram({VELMO_LXHOST, "/nowhere/script.lua"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.error,
              StartsWith("lxhost: cannot open /nowhere/script.lua"));
}

TEST(Lxhost, LeavesTheExitStatusToTheScript) {
  EXPECT_EQ(RunScript("os.exit(7, true)").status, 7);
}

TEST(Lxhost, ReadsAScriptFromStandardInput) {
  const Outcome outcome = RunProgram(
      {VELMO_LXHOST}, "print(LxHelp.displayClientPage 'x', arg[0] ~= nil)");
  EXPECT_EQ(outcome.out, "invalidInitialization\ttrue\n");
  EXPECT_EQ(outcome.status, 0);
}

TEST(Lxhost, ReportsAFailingScriptFromStandardInput) {
  const Outcome outcome = RunProgram({VELMO_LXHOST}, "\nerror 'boo'");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.error, StartsWith("lxhost: stdin:2: boo\n"));
}

TEST(Lxhost, ReadsAScriptWithArgumentsFromStandardInput) {
  const Outcome outcome =
      RunProgram({VELMO_LXHOST, "-", "a"}, "print(arg[0], ...)");
  EXPECT_EQ(outcome.out, "-\ta\n");
}

TEST(Lxhost, PromptsOnATerminal) {
  const Outcome outcome =
      RunOnTerminal({VELMO_LXHOST},
                    "LxHelpWorker.initializeClient('', 'x')\n"
                    "for i = 1, 2 do\nprint(i) end\n"
                    "x x\n"
                    "error 'boo'\n"
                    "1, nil\n");
  EXPECT_THAT(outcome.out, StartsWith("> invalidArgument\n"
                                      "> >> 1\n2\n"
                                      "> lxhost: stdin:1: syntax error"));
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("\n> lxhost: stdin:1: boo\nstack"),
                                 ::testing::EndsWith("\n> 1\tnil\n> \n")));
  EXPECT_EQ(outcome.status, 0);
}

TEST(Lxhost, DropsAStatementThatEndsInTheMiddleAndPromptsAgain) {
  const Outcome outcome = RunOnTerminal({VELMO_LXHOST},
                                        "for i = 1, 2 do\n\x04"
                                        "1 + 1\n");
  EXPECT_THAT(outcome.out, AllOf(StartsWith("> >> lxhost: stdin:"),
                                 ::testing::EndsWith("\n> 2\n> \n")));
  EXPECT_EQ(outcome.status, 0);
}

TEST(Lxhost, InitialisesFromTheResourcesBesideIt) {
  const TemporaryDirectory folder;
  std::filesystem::copy_file(VELMO_LXHOST, folder / "app");
  folder.Write("app.resources/help/en_US/Product.helpcfg",
               R"(<help id="en_US_Product" path="content" appId="NULL"
                  baseUrl="http://localhost/"/>)");
  const Outcome outcome =
      RunProgram({folder / "app"},
                 "print(LxHelp.displayClientPage(''), "
                 "LxHelpWorker.initializeClient('Product', 'en_US'), "
                 "LxHelp.displayClientPage(''))",
                 {"XDG_CONFIG_HOME=" + folder.MakeDirectory("config")});
  EXPECT_EQ(outcome.out, "invalidInitialization\tsuccess\tinvalidArgument\n")
      << outcome.error;
}

TEST(Lxhost, SaysThatThePlugInCannotBeLoaded) {
  const TemporaryDirectory folder;
  folder.Write("libvelmohelp.so.1", "no library");
  const Outcome outcome =
      RunProgram({VELMO_LXHOST_ELSEWHERE}, "print 'reached'",
                 {"LD_LIBRARY_PATH=" + folder.path()});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.error,
              StartsWith("lxhost: cannot load libvelmohelp.so.1: "));
}

}  // namespace
}  // namespace velmohelp::testing
