// After a closing quote with a backslash before it, the scan finds the same
// quote again, forever. Existing files rely on this, so it stays, also in
// optimised builds. A limit of processor time ends the scan here.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <velmohelp/config.h>

#include <csignal>
#include <cstdlib>

#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

void LimitProcessorTime() {
  constexpr rlimit kOneSecond = {.rlim_cur = 1, .rlim_max = 2};
  constexpr rlimit kNoCoreFile = {.rlim_cur = 0, .rlim_max = 0};
  setrlimit(RLIMIT_CORE, &kNoCoreFile);
  setrlimit(RLIMIT_CPU, &kOneSecond);
}

std::string KeyIn(const std::string& path, const std::string& key) {
  XMLParser parser;
  parser.ReadFileToBuffer(path);
  return parser.GetKey(key);
}

class EndlessScanDeathTest : public ::testing::Test {
 protected:
  const TemporaryDirectory folder;
};

TEST_F(EndlessScanDeathTest, FollowsAnEscapedClosingQuote) {
  const std::string path = folder.Write("x", R"(id="a\"b" end="c")");
  EXPECT_EXIT((LimitProcessorTime(), KeyIn(path, "id")),
              ::testing::KilledBySignal(SIGXCPU), "");
}

TEST_F(EndlessScanDeathTest, FollowsAnEscapedClosingQuoteAtTheEndOfTheText) {
  const std::string path = folder.Write("x", R"(id="\")");
  EXPECT_EXIT((LimitProcessorTime(), KeyIn(path, "id")),
              ::testing::KilledBySignal(SIGXCPU), "");
}

TEST_F(EndlessScanDeathTest, FollowsAnEscapedQuoteInThePreferenceFile) {
  const std::string path = folder.Write("x", R"(accessibleMode="TRUE\"")");
  EXPECT_EXIT((LimitProcessorTime(), GetKLHFilePreferenceForHelpApp(path)),
              ::testing::KilledBySignal(SIGXCPU), "");
}

TEST_F(EndlessScanDeathTest, DoesNotFollowAnEscapedQuoteOfAnotherKey) {
  const std::string path = folder.Write("x", R"(id="a" pubId="b\"")");
  EXPECT_EXIT(std::exit(KeyIn(path, "id").compare("a")),
              ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace velmohelp::testing
