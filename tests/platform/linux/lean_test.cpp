// The helper that every request starts must start fast.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace velmohelp {
namespace {

/// The libraries that a program names, as readelf lists them.
std::vector<std::string> LibrariesOf(const std::string& program) {
  const std::string command =
      std::string(VELMO_TEST_READELF) + " --dynamic '" + program + "'";
  std::FILE* listing = popen(command.c_str(), "r");
  std::vector<std::string> libraries;
  for (char text[512]; std::fgets(text, sizeof text, listing) != nullptr;) {
    const std::string line = text;
    const std::size_t name = line.find('[');
    if (line.find("(NEEDED)") == std::string::npos) continue;
    libraries.push_back(line.substr(name + 1, line.find(']') - name - 1));
  }
  pclose(listing);
  return libraries;
}

TEST(LeanHelper, NeedsTheCLibraryAlone) {
  EXPECT_THAT(LibrariesOf(VELMO_TEST_HELPERS "/velmohelp-reach"),
              ::testing::ElementsAre("libc.so.6"));
}

}  // namespace
}  // namespace velmohelp
