// The helpers that every request starts must start fast.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "platform/linux/programs.h"

namespace velmohelp {
namespace {

/// The libraries that a program names, as readelf lists them.
std::vector<std::string> LibrariesOf(const std::string& program) {
  Programs programs("");
  const auto listing =
      programs.AllOutput(VELMO_TEST_READELF, {"--dynamic", program},
                         std::chrono::minutes(1), 1U << 20U);
  std::istringstream lines(listing.value_or(""));
  std::vector<std::string> libraries;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t name = line.find('[');
    if (line.find("(NEEDED)") == std::string::npos) continue;
    libraries.push_back(line.substr(name + 1, line.find(']') - name - 1));
  }
  return libraries;
}

TEST(LeanHelpers, NeedTheCLibraryAlone) {
  for (const char* helper : {"/velmohelp-reach", "/velmohelp-run"}) {
    EXPECT_THAT(LibrariesOf(std::string(VELMO_TEST_HELPERS) + helper),
                ::testing::ElementsAre("libc.so.6"));
  }
}

}  // namespace
}  // namespace velmohelp
