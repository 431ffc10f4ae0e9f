// The command line as a whole.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/sentence.h"
#include "tests/tools/run_tool.h"

namespace velmohelp {
namespace {

using ::testing::HasSubstr;
using testing::RunTool;

struct Usage {
  std::string sentence;
  std::vector<std::string> arguments;
  int status;
};

void PrintTo(const Usage& row, std::ostream* out) { *out << row.sentence; }

class CommandLine : public ::testing::TestWithParam<Usage> {};

TEST_P(CommandLine, ExitsWith) {
  const auto run = RunTool(GetParam().arguments);
  EXPECT_EQ(run.status, GetParam().status) << run.out << run.err;
  EXPECT_EQ(run.err.empty(), GetParam().status == 0);
}

INSTANTIATE_TEST_SUITE_P(
    , CommandLine,
    ::testing::Values(
        Usage{"help", {"--help"}, 0}, Usage{"the version", {"--version"}, 0},
        Usage{"help of a command", {"check", "--help"}, 0},
        Usage{"no command", {}, 64}, Usage{"an unknown command", {"mend"}, 64},
        Usage{"an unknown option", {"check", "--mend", "."}, 64},
        Usage{"an unknown format", {"import", "xls", "a", "-o", "b"}, 64},
        Usage{"an unknown colour", {"check", ".", "--color", "red"}, 64},
        Usage{"an unknown finding", {"check", ".", "--without", "x"}, 64},
        Usage{"an import without a folder", {"import", "tsv", "a"}, 64},
        Usage{"a file that is not there", {"check", "/nonexistent"}, 74}),
    testing::SentenceOf());

TEST(CommandLineHelp, OfEachCommandHasExamples) {
  for (const char* command : {"check", "new", "import"}) {
    EXPECT_THAT(RunTool({command, "--help"}).out,
                HasSubstr("Examples:\n  velmo-help " + std::string(command)));
  }
}

}  // namespace
}  // namespace velmohelp
