// velmo-help import, from its arguments to its files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/support/temporary_directory.h"
#include "tests/tools/run_tool.h"
#include "tools/files.h"

namespace velmohelp {
namespace {

using ::testing::HasSubstr;
using testing::RunTool;
using testing::TemporaryDirectory;
using testing::ToolRun;

class ImportCommand : public ::testing::Test {
 protected:
  ToolRun Import(const std::string& table,
                 std::vector<std::string> options = {}) {
    options.insert(options.begin(),
                   {"import", "tsv", folder_.Write("ids.tsv", table), "-o",
                    folder_ / "Foo"});
    return RunTool(options);
  }

  std::string Map() { return tool::ReadWholeFile(folder_ / "Foo/helpmap.txt"); }

  bool IsWritten() { return std::filesystem::exists(folder_ / "Foo"); }

  const TemporaryDirectory folder_;
};

TEST_F(ImportCommand, WritesAMapAndAConfigurationWithoutFindings) {
  ASSERT_EQ(Import("a b\tp.html\n").status, 0);
  EXPECT_EQ(Map(), "VX_HOME\tp.html\na_b\tp.html\n");
  folder_.Write("Foo/p.html", "<title>t</title>");
  const ToolRun check = RunTool({"check", folder_ / "Foo"});
  EXPECT_EQ(check.status, 0) << check.out;
  const std::filesystem::directory_iterator files(folder_ / "Foo");
  EXPECT_EQ(std::distance(begin(files), end(files)), 3);
}

TEST_F(ImportCommand, SaysWhatItChanged) {
  const std::string table = "a:b\tp\na/b\tq\nc\td\n";
  const ToolRun run = Import(table);
  EXPECT_THAT(run.out, HasSubstr("ids.tsv:2: \"a/b\" has the key \"a_b\", "
                                 "which leads to \"p\" already, not to \"q\"; "
                                 "left out\n"));
  EXPECT_THAT(run.out, HasSubstr("ids.tsv: the home page is \"p\""));
  EXPECT_THAT(run.out, HasSubstr("helpmap.txt: 3 entries"));
  EXPECT_THAT(run.out, Not(HasSubstr("is looked up as")));
  EXPECT_THAT(Import(table, {"--force", "--verbose"}).out,
              HasSubstr("ids.tsv:1: \"a:b\" is looked up as \"a_b\"\n"));
}

TEST_F(ImportCommand, SaysItAsJson) {
  const auto report =
      nlohmann::json::parse(Import("a:b\tp\n", {"--json", "--home", "h"}).out);
  EXPECT_EQ(report["schema"], 1);
  EXPECT_EQ(report["entries"], 2);
  EXPECT_EQ(report["map"], folder_ / "Foo/helpmap.txt");
  EXPECT_EQ(report["configuration"], folder_ / "Foo/Foo.helpcfg");
  EXPECT_EQ(report["remarks"][0]["line"], 1);
  EXPECT_EQ(report["remarks"][0]["renamed"], true);
}

TEST_F(ImportCommand, TakesTheTablesOwnHomePage) {
  Import("a\tp\nb\tindex.html\nVX_HOME\th\n");
  EXPECT_THAT(Map(), ::testing::StartsWith("VX_HOME\th\n"));
}

TEST_F(ImportCommand, TakesIndexHtmlForTheHomePage) {
  Import("a\tp\nb\tindex.html#x\n");
  EXPECT_THAT(Map(), ::testing::StartsWith("VX_HOME\tindex.html\n"));
}

TEST_F(ImportCommand, NamesProductAndFolderAsAsked) {
  Import("a\tp\n",
         {"--product", "Bar", "--content", "x/y", "--locale", "de_DE"});
  EXPECT_THAT(
      tool::ReadWholeFile(folder_ / "Foo/Bar.helpcfg"),
      AllOf(HasSubstr("id=\"de_DE_Bar\""), HasSubstr("<content path=\"x/y\"")));
}

TEST_F(ImportCommand, WritesNothingAtACollisionThatIsAnError) {
  const ToolRun run = Import("a:b\tp\na/b\tq\n", {"--on-collision", "error"});
  EXPECT_EQ(run.status, tool::kExitBadInput);
  EXPECT_THAT(run.err, HasSubstr("line 2: \"a/b\""));
  EXPECT_FALSE(IsWritten());
}

TEST_F(ImportCommand, WritesNothingForATableWithoutAPage) {
  EXPECT_EQ(Import("").status, tool::kExitBadInput);
  EXPECT_FALSE(IsWritten());
}

TEST_F(ImportCommand, OverwritesNothingUnlessTold) {
  folder_.Write("Foo/Foo.helpcfg", "mine");
  EXPECT_EQ(Import("a\tp\n").status, tool::kExitFile);
  EXPECT_EQ(tool::ReadWholeFile(folder_ / "Foo/Foo.helpcfg"), "mine");
  EXPECT_FALSE(std::filesystem::exists(folder_ / "Foo/helpmap.txt"));
  EXPECT_EQ(Import("a\tp\n", {"--force"}).status, 0);
}

TEST_F(ImportCommand, WritesNoFileOutsideItsFolder) {
  EXPECT_EQ(Import("a\tp\n", {"--product", "../Bar"}).status, tool::kExitUsage);
  EXPECT_FALSE(IsWritten());
}

TEST_F(ImportCommand, FailsForATableThatIsNotThere) {
  const ToolRun run =
      RunTool({"import", "gimp", folder_ / "x", "-o", folder_ / "Foo"});
  EXPECT_EQ(run.status, tool::kExitFile);
  EXPECT_EQ(run.err, "velmo-help: " + folder_ / "x" + ": no such file\n");
}

}  // namespace
}  // namespace velmohelp
