// The host program as a process, with the built plug-in.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/process.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

using ::testing::AllOf;
using ::testing::EndsWith;
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

TEST(Lxhost, OffersTheOtherRequestsInTheModule) {
  const Outcome outcome = RunScript(
      "local help = require 'velmohelp' "
      "print(help.openURL(''), help.search('', '', ''), help.status())");
  EXPECT_EQ(outcome.out, "invalidArgument\tinvalidArgument\tnotInitialized\n")
      << outcome.error;
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

TEST(Lxhost, ReportsAnErrorThatIsNotAString) {
  EXPECT_THAT(RunScript("error(nil)").error, StartsWith("lxhost: nil\n"));
  EXPECT_THAT(RunScript("error({})").error, StartsWith("lxhost: table: "));
  const Outcome outcome = RunScript(
      "error(setmetatable({}, {__tostring = function() error(1) end}))");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.error, StartsWith("lxhost: "));
}

TEST(Lxhost, ReportsAScriptThatIsNotLua) {
  const Outcome outcome = RunScript("x x");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.error, HasSubstr("script.lua:1: syntax error near 'x'"));
}

TEST(Lxhost, ReportsAMissingScript) {
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
  EXPECT_THAT(outcome.out,
              AllOf(StartsWith("> LxHelpWorker"),
                    HasSubstr("\ninvalidArgument\r\n> for"),
                    HasSubstr("\n>> print(i) end\r\n1\r\n2\r\n> x x\r\n"),
                    HasSubstr("\nlxhost: stdin:1: syntax error"),
                    HasSubstr("\nlxhost: stdin:1: boo\r\nstack"),
                    EndsWith("\n1\tnil\r\n> ^D\r\n")));
  EXPECT_EQ(outcome.status, 0);
}

TEST(Lxhost, LetsALineBeEdited) {
  // Control-A goes to the start of the line.
  const Outcome outcome = RunOnTerminal({VELMO_LXHOST},
                                        " + 1\x01"
                                        "41\n");
  EXPECT_THAT(outcome.out, EndsWith("\n42\r\n> ^D\r\n"));
}

TEST(Lxhost, BringsAnEarlierLineBack) {
  // Control-P is the line before, as the upward arrow is.
  const Outcome outcome = RunOnTerminal(
      {VELMO_LXHOST}, "n = (n or 0) + 1\n\x10\n\x1b[A\n'n is ' .. n\n");
  EXPECT_THAT(outcome.out, EndsWith("\nn is 3\r\n> ^D\r\n"));
}

TEST(Lxhost, DropsAStatementThatEndsInTheMiddleAndPromptsAgain) {
  const Outcome outcome = RunOnTerminal({VELMO_LXHOST},
                                        "for i = 1, 2 do\n\x04"
                                        "1 + 1\n");
  EXPECT_THAT(outcome.out, AllOf(HasSubstr(">> ^D\r\nlxhost: stdin:"),
                                 EndsWith("\n2\r\n> ^D\r\n")));
  EXPECT_EQ(outcome.status, 0);
}

TEST(Lxhost, TakesStatementsFromAPipeToo) {
  const Outcome outcome =
      RunProgram({VELMO_LXHOST, "-i"},
                 "1 + 1\nerror 'boo'\nfor i = 3, 4 do\nprint(i) end\n'last'");
  EXPECT_EQ(outcome.out, "2\n3\n4\nlast\n\n");
  EXPECT_THAT(outcome.error, StartsWith("lxhost: stdin:1: boo\n"));
  EXPECT_EQ(outcome.status, 0);
}

TEST(Lxhost, PromptsAfterTheScriptOnRequest) {
  const TemporaryDirectory folder;
  const Outcome outcome = RunProgram(
      {VELMO_LXHOST, "-i", folder.Write("script.lua", "x = ...")}, "x\n");
  EXPECT_EQ(outcome.out, "nil\n\n");
}

TEST(Lxhost, RunsTextOfTheCommandLineBeforeTheScript) {
  const TemporaryDirectory folder;
  const std::string script = folder.Write(
      "script.lua", "print(x, y, ...) print(arg[-1], arg[0] ~= nil)");
  const Outcome outcome =
      RunProgram({VELMO_LXHOST, "-e", "x = 1", "-e", "y = 2", script, "-e"});
  EXPECT_EQ(outcome.out, "1\t2\t-e\ny = 2\ttrue\n") << outcome.error;
}

TEST(Lxhost, EndsAfterTextOfTheCommandLine) {
  const Outcome outcome =
      RunProgram({VELMO_LXHOST, "-e", "print(#arg)"}, "print 'not reached'");
  EXPECT_EQ(outcome.out, "2\n");
}

TEST(Lxhost, ReportsAnErrorInTextOfTheCommandLine) {
  const Outcome outcome = RunProgram({VELMO_LXHOST, "-e", "error 'boo'"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.error, StartsWith("lxhost: (command line):1: boo\n"));
}

struct CommandLine {
  std::string sentence;
  Words arguments;
  int status;
  std::string out;
  std::string error;
};

void PrintTo(const CommandLine& row, std::ostream* out) {
  *out << row.sentence;
}

class LxhostCommandLine : public ::testing::TestWithParam<CommandLine> {};

TEST_P(LxhostCommandLine, IsUnderstood) {
  Words command = {VELMO_LXHOST};
  const Words& arguments = GetParam().arguments;
  command.insert(command.end(), arguments.begin(), arguments.end());
  const Outcome outcome = RunProgram(command, "print(arg[0] ~= nil, ...)");
  EXPECT_EQ(outcome.status, GetParam().status);
  EXPECT_THAT(outcome.out, StartsWith(GetParam().out));
  EXPECT_THAT(outcome.error, StartsWith(GetParam().error));
}

INSTANTIATE_TEST_SUITE_P(
    Accepted, LxhostCommandLine,
    ::testing::Values(
        CommandLine{"help", {"--help"}, 0, "usage: lxhost ", ""},
        CommandLine{"help in short", {"-h"}, 0, "usage: lxhost ", ""},
        CommandLine{"help after a text that then is not run",
                    {"-e", "error()", "--help"},
                    0,
                    "usage: lxhost ",
                    ""},
        CommandLine{
            "the version", {"--version"}, 0, "lxhost 1.5.0, Lua 5.4", ""},
        CommandLine{
            "the version in short", {"-v"}, 0, "lxhost 1.5.0, Lua 5.4", ""},
        CommandLine{
            "no script after the end of the options", {"--"}, 0, "true\n", ""},
        CommandLine{"options of the script",
                    {"--", "-", "--help"},
                    0,
                    "true\t--help\n",
                    ""}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Refused, LxhostCommandLine,
    ::testing::Values(
        CommandLine{"an unknown option",
                    {"-x"},
                    2,
                    "",
                    "lxhost: bad option '-x'; see lxhost --help\n"},
        CommandLine{"an unknown long option",
                    {"--helpless"},
                    2,
                    "",
                    "lxhost: bad option '--helpless'"},
        CommandLine{"a missing text", {"-e"}, 2, "", "lxhost: bad option '-e'"},
        CommandLine{"an unknown option after a text that then is not run",
                    {"-e", "print(1)", "-x"},
                    2,
                    "",
                    "lxhost: bad option '-x'"},
        CommandLine{"a script that begins with a hyphen after the options",
                    {"--", "-x"},
                    1,
                    "",
                    "lxhost: cannot open -x"}),
    SentenceOf());

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

TEST(Lxhost, ReportsAPluginThatCannotBeLoaded) {
  const TemporaryDirectory folder;
  folder.Write("libvelmohelp.so.1", "not a library");
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
