// Reads the library's sources and checks each #include against the rules.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/architecture/include_rules.h"

namespace velmohelp {
namespace {

namespace fs = std::filesystem;

bool IsSource(const fs::path& path) {
  return path.extension() == ".cpp" || path.extension() == ".c" ||
         path.extension() == ".h";
}

/// What follows #include on a line; "" on any other line.
std::string HeaderOn(const std::string& line) {
  constexpr std::string_view kDirective = "#include ";
  if (!line.starts_with(kDirective)) return "";
  return line.substr(kDirective.size());
}

/// The headers that a source includes and may not.
std::vector<std::string> ForbiddenIncludesOf(const fs::path& path) {
  const std::string file =
      fs::relative(path, VELMO_SOURCE_DIR).generic_string();
  std::vector<std::string> forbidden;
  std::ifstream stream(path);
  for (std::string line; std::getline(stream, line);) {
    const std::string header = HeaderOn(line);
    if (!header.empty() && !testing::MayInclude(file, header)) {
      forbidden.push_back(header);
    }
  }
  return forbidden;
}

class Includes : public ::testing::TestWithParam<const char*> {};

TEST_P(Includes, GoDownThroughTheLayers) {
  int sources = 0;
  for (const auto& entry : fs::recursive_directory_iterator(
           fs::path(VELMO_SOURCE_DIR) / GetParam())) {
    if (!IsSource(entry.path())) continue;
    ++sources;
    EXPECT_THAT(ForbiddenIncludesOf(entry.path()), ::testing::IsEmpty())
        << entry.path();
  }
  EXPECT_GT(sources, 0);
}

INSTANTIATE_TEST_SUITE_P(, Includes,
                         ::testing::Values("exports", "client", "config",
                                           "resolve", "online", "platform",
                                           "util"),
                         [](const auto& folder) {
                           return std::string(folder.param);
                         });

}  // namespace
}  // namespace velmohelp
