// Every script of the project, asked how to use it and called the wrong way.
// Once, asking for help deleted packages and built new ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

namespace fs = std::filesystem;
using ::testing::StartsWith;

constexpr char kSource[] = VELMO_SOURCE;

/// Not the programs that the demonstration installs, nor those of an example
/// that people copy: they have nothing to take their usage text from.
bool IsScript(const fs::directory_entry& entry) {
  constexpr auto kExecute = fs::perms::owner_exec;
  const fs::path& path = entry.path();
  return entry.is_regular_file() &&
         (entry.status().permissions() & kExecute) == kExecute &&
         path.string().find("/examples/sketch/") == std::string::npos &&
         (path.parent_path().filename() != "examples" ||
          path.filename().string().starts_with("demo-"));
}

/// Paths below the root of the source tree.
std::vector<std::string> AllScripts() {
  std::vector<std::string> scripts = {"demo", "test", "tests/abi/baseline.sh"};
  for (const std::string folder : {"bench", "examples", "scripts"}) {
    for (const auto& entry :
         fs::recursive_directory_iterator(kSource + ("/" + folder))) {
      if (!IsScript(entry)) continue;
      scripts.push_back(fs::relative(entry.path(), kSource));
    }
  }
  std::sort(scripts.begin(), scripts.end());
  return scripts;
}

/// Runs in a copy of the scripts, with none of the machine's programs but those
/// that print: a script that does more than that fails.
class Script : public ::testing::TestWithParam<std::string> {
 protected:
  Script() {
    fs::create_directory(folder_ / "tests");
    for (const std::string name :
         {"bench", "examples", "scripts", "demo", "test", "tests/abi"}) {
      fs::copy(kSource + ("/" + name), folder_ / name,
               fs::copy_options::recursive);
    }
    fs::create_directory(folder_ / "bin");
    for (const std::string name : {"basename", "dirname", "python3", "sed"}) {
      fs::create_symlink("/usr/bin/" + name, folder_ / ("bin/" + name));
    }
    folder_.Write("output", "");
    folder_.Write("error", "");
  }

  int Run(const std::string& argument) {
    const std::string command = "cd '" + folder_.path() +
                                "'; PATH=$PWD/bin ./" + GetParam() + " " +
                                argument + " >output 2>error </dev/null";
    const auto before = Tree();
    const int status = std::system(command.c_str());
    EXPECT_EQ(Tree(), before);
    return WEXITSTATUS(status);
  }

  testing::TemporaryDirectory folder_;

 private:
  /// Every path and when it changed, but for what the script prints.
  std::vector<std::string> Tree() {
    std::vector<std::string> all;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.path())) {
      const fs::path& path = entry.path();
      if (path.filename() == "output" || path.filename() == "error") continue;
      const auto time =
          entry.is_directory()
              ? 0
              : fs::last_write_time(path).time_since_epoch().count();
      all.push_back(path.string() + " " + std::to_string(time));
    }
    std::sort(all.begin(), all.end());
    return all;
  }
};

TEST_P(Script, PrintsItsUsageAndChangesNothing) {
  EXPECT_EQ(Run("--help"), 0);
  EXPECT_THAT(testing::FileText(folder_ / "output"), StartsWith("usage: "));
  EXPECT_EQ(testing::FileText(folder_ / "error"), "");
}

TEST_P(Script, RefusesAnUnknownOptionAndChangesNothing) {
  EXPECT_EQ(Run("--no-such-option"), 2);
  EXPECT_EQ(testing::FileText(folder_ / "output"), "");
  EXPECT_THAT(testing::FileText(folder_ / "error"),
              ::testing::HasSubstr("usage: "));
}

INSTANTIATE_TEST_SUITE_P(Each, Script, ::testing::ValuesIn(AllScripts()),
                         [](const auto& row) {
                           return testing::AsTestName(row.param);
                         });

struct Row {
  std::string sentence;
  std::string command;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.sentence; }

class WrongCall : public ::testing::TestWithParam<Row> {};

TEST_P(WrongCall, IsRefused) {
  const std::string command = std::string("cd '") + kSource + "' && " +
                              GetParam().command + " >/dev/null 2>&1";
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 2);
}

INSTANTIATE_TEST_SUITE_P(
    Each, WrongCall,
    ::testing::Values(
        Row{"fuzzing without a time", "./test --fuzz"},
        Row{"fuzzing for a word instead of a number", "scripts/fuzz long"},
        Row{"fuzzing a target that does not exist", "scripts/fuzz 1 nobody"},
        Row{"a word for the tests", "./test quickly"},
        Row{"a word for the coverage", "scripts/coverage client"},
        Row{"a word for the package test", "scripts/package-test quickly"},
        Row{"a clean system without packages", "scripts/clean-root /tmp/none"},
        Row{"a command in a root that does not exist",
            "scripts/in-root /nowhere true"},
        Row{"a table that no benchmark has", "bench/run --rounds 1 everything"},
        Row{"a benchmark with a word for the rounds",
            "bench/run --rounds many"},
        Row{"a benchmark without the file for its figures", "bench/run --json"},
        Row{"a word for the Unicode benchmark", "bench/run unicode nothing"},
        Row{"a loop with a word for the requests",
            "bench/loop/run --starts many"}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
