// velmo-help new, whose files must be right for the check and for the client.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "config/help_config.h"
#include "resolve/help_map/help_map.h"
#include "tests/support/temporary_directory.h"
#include "tests/tools/run_tool.h"
#include "tools/files.h"

namespace velmohelp {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::RunTool;
using testing::TemporaryDirectory;
using testing::ToolRun;

class NewCommand : public ::testing::Test {
 protected:
  ToolRun New(const std::string& product,
              std::vector<std::string> options = {}) {
    options.insert(options.begin(), {"new", product, "-o", folder_ / "out"});
    return RunTool(options);
  }

  const TemporaryDirectory folder_;
};

TEST_F(NewCommand, WritesFilesWithoutFindings) {
  ASSERT_EQ(New("Sketch").status, 0);
  const ToolRun check = RunTool({"check", folder_ / "out"});
  EXPECT_EQ(check.status, 0) << check.out << check.err;
}

TEST_F(NewCommand, NamesEachFileThatItWrites) {
  const ToolRun run = New("Sketch", {"--locale", "de_DE"});
  const std::string content = folder_ / "out/content/de_DE/Sketch/";
  EXPECT_EQ(run.out, folder_ / "out/help/de_DE/Sketch.helpcfg" + "\n" +
                         content + "helpmap.txt\n" + content + "index.html\n" +
                         content + "search.html\n");
}

TEST_F(NewCommand, WritesAConfigurationThatTheClientAccepts) {
  New("Sketch", {"--base-url", "https://h/s/", "--app-id", "klh"});
  std::string locale = "en_US";
  std::string id;
  std::string base_url;
  std::string app_id;
  std::string publisher_id;
  bool app_id_is_null = false;
  std::string rows[kHelpPathCapacity][2];
  std::int32_t count = kHelpPathCapacity;
  const HelpConfigState state{.product_id = "Sketch",
                              .downloaded_suffix = "",
                              .locale = locale,
                              .config_id = id,
                              .base_url = base_url,
                              .app_id = app_id,
                              .publisher_id = publisher_id,
                              .app_id_is_null = app_id_is_null,
                              .help_paths = rows,
                              .help_path_count = count};
  EXPECT_EQ(ReadHelpConfig(state, folder_ / "out/help/en_US/Sketch.helpcfg"),
            HelpConfigStatus::kAccepted);
  EXPECT_EQ(base_url, "https://h/s/");
  ASSERT_EQ(count, 1);
  EXPECT_THAT(rows[0], ElementsAre("en_US/Sketch", "YES"));
}

TEST_F(NewCommand, OverwritesNothingUnlessTold) {
  const std::string map =
      folder_.Write("out/content/en_US/Sketch/helpmap.txt", "mine");
  EXPECT_EQ(New("Sketch").status, tool::kExitFile);
  EXPECT_EQ(tool::ReadWholeFile(map), "mine");
  EXPECT_FALSE(std::filesystem::exists(folder_ / "out/help"));
  EXPECT_EQ(New("Sketch", {"--force"}).status, 0);
  EXPECT_NE(tool::ReadWholeFile(map), "mine");
}

TEST_F(NewCommand, ReplacesALinkAndLeavesItsTarget) {
  const std::string target = folder_.Write("target", "mine");
  std::filesystem::create_directories(folder_ / "out/help/en_US");
  std::filesystem::create_symlink(target,
                                  folder_ / "out/help/en_US/Sketch.helpcfg");
  EXPECT_EQ(New("Sketch").status, tool::kExitFile);
  EXPECT_EQ(New("Sketch", {"--force"}).status, 0);
  EXPECT_EQ(tool::ReadWholeFile(target), "mine");
}

TEST_F(NewCommand, RefusesAProductThatIsNoFileName) {
  EXPECT_EQ(New("a/b").status, tool::kExitUsage);
  EXPECT_EQ(New("..").status, tool::kExitUsage);
}

TEST_F(NewCommand, RefusesWhatTheClientWouldMisread) {
  for (const char* product : {"a\"b", "baseUrl", "path", "a\\"}) {
    const ToolRun run = New(product);
    EXPECT_EQ(run.status, tool::kExitBadInput) << product << run.out;
    EXPECT_FALSE(std::filesystem::exists(folder_ / "out")) << product;
  }
  EXPECT_EQ(New("Sketch", {"--locale", "en"}).status, tool::kExitBadInput);
}

}  // namespace
}  // namespace velmohelp
