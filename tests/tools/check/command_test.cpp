// velmo-help check, from its arguments to its output.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "tests/support/temporary_directory.h"
#include "tests/tools/run_tool.h"
#include "tools/check/progress.h"
#include "tools/check/report.h"
#include "tools/check/rules.h"
#include "util/input_file.h"

namespace velmohelp {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunTool;
using testing::TemporaryDirectory;
using testing::ToolRun;
using Json = nlohmann::json;

constexpr char kMap[] = "VX_HOME\tb.html\nmy page\tb.html\n";
constexpr char kCleanMap[] = "VX_HOME\tb.html\nmy_page\tb.html\n";

class CheckCommand : public ::testing::Test {
 protected:
  void AddFolder(const std::string& name, const std::string& map) {
    folder_.Write(name + "/b.html", "<title>t</title>");
    folder_.Write(name + "/helpmap.txt", map);
  }

  ToolRun Check(std::vector<std::string> options = {}) {
    options.insert(options.begin(), {"check", folder_ / "a"});
    return RunTool(options);
  }

  /// The names of the findings, from the JSON report.
  std::vector<std::string> NamesWith(std::vector<std::string> options) {
    options.emplace_back("--json");
    std::vector<std::string> names;
    const Json report = Json::parse(Check(options).out);
    for (const auto& finding : report["findings"]) {
      names.push_back(finding["name"]);
    }
    return names;
  }

  const TemporaryDirectory folder_;
};

TEST_F(CheckCommand, IsSilentWithoutFindings) {
  AddFolder("a", kCleanMap);
  const ToolRun run = Check();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out + run.err, "");
}

TEST_F(CheckCommand, PrintsFindingsAsCompilersDo) {
  AddFolder("a", kMap);
  const ToolRun run = Check();
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, folder_ / "a/helpmap.txt" +
                         ":2:1: error: the id \"my page\" is looked up as "
                         "\"my_page\"; only the id \"my page.html\" has this "
                         "key [unreachable-key]\n");
  EXPECT_EQ(run.err, "1 error, 0 warnings\n");
}

TEST_F(CheckCommand, ColoursTheSeverityWhenAsked) {
  AddFolder("a", kMap);
  EXPECT_THAT(Check({"--color", "always"}).out, HasSubstr("\x1B[1;31merror"));
  EXPECT_THAT(Check({"--color", "auto"}).out, Not(HasSubstr("\x1B")));
}

TEST_F(CheckCommand, EscapesTerminalCommandsInNames) {
  AddFolder("a", "VX_HOME\tb.html\nx\x1B[2J\tb.html\n");
  EXPECT_THAT(Check().out, HasSubstr("x\\x1B[2J"));
}

TEST_F(CheckCommand, PrintsJson) {
  AddFolder("a", kMap);
  const Json report = Json::parse(Check({"--json"}).out);
  EXPECT_EQ(report["schema"], 1);
  EXPECT_EQ(report["errors"], 1);
  EXPECT_EQ(report["warnings"], 0);
  ASSERT_EQ(report["findings"].size(), 1U);
  const Json& finding = report["findings"][0];
  EXPECT_EQ(finding["file"], folder_ / "a/helpmap.txt");
  EXPECT_EQ(finding["line"], 2);
  EXPECT_EQ(finding["column"], 1);
  EXPECT_EQ(finding["severity"], "error");
  EXPECT_EQ(finding["name"], "unreachable-key");
}

TEST_F(CheckCommand, PrintsBytesThatAreNotUtf8AsValidJson) {
  AddFolder("a", "VX_HOME\tb.html\nx\xFF\tb.html\n");
  EXPECT_TRUE(Json::accept(Check({"--json"}).out));
  EXPECT_TRUE(Json::accept(Check({"--format", "sarif"}).out));
}

TEST_F(CheckCommand, PrintsSarif) {
  AddFolder("a b", kMap);
  const Json log =
      Json::parse(RunTool({"check", folder_ / "a b", "--format", "sarif"}).out);
  EXPECT_EQ(log["version"], "2.1.0");
  const Json& run = log["runs"][0];
  EXPECT_EQ(run["tool"]["driver"]["name"], "velmo-help");
  EXPECT_EQ(run["columnKind"], "unicodeCodePoints");
  const Json& result = run["results"][0];
  EXPECT_EQ(result["ruleId"], "unreachable-key");
  EXPECT_EQ(result["level"], "error");
  const std::size_t rule = result["ruleIndex"];
  EXPECT_EQ(run["tool"]["driver"]["rules"][rule]["id"], "unreachable-key");
  const Json& place = result["locations"][0]["physicalLocation"];
  std::string uri = place["artifactLocation"]["uri"];
  EXPECT_EQ(uri.find(' '), std::string::npos);
  EXPECT_TRUE(uri.starts_with("file:///tmp/"));
  EXPECT_TRUE(uri.ends_with("/a%20b/helpmap.txt"));
  EXPECT_EQ(place["region"]["startLine"], 2);
  EXPECT_EQ(place["region"]["startColumn"], 1);
}

/// A map of so many lines without a tab.
std::string SkippedLines(std::size_t count) {
  std::string text = "VX_HOME\tb.html\n";
  for (std::size_t i = 0; i < count; ++i) text += "x\n";
  return text;
}

std::size_t LinesOf(const std::string& text) {
  return static_cast<std::size_t>(std::ranges::count(text, '\n'));
}

TEST_F(CheckCommand, PrintsAsManyFindingsOfAFileAsItMay) {
  AddFolder("a", SkippedLines(tool::kMostOfAFile));
  const ToolRun run = Check();
  EXPECT_EQ(LinesOf(run.out), tool::kMostOfAFile);
  EXPECT_EQ(run.err, "0 errors, 1000 warnings\n");
  EXPECT_EQ(Json::parse(Check({"--json"}).out)["left_out"], Json::array());
}

TEST_F(CheckCommand, CountsTheFindingsOfAFileThatItDoesNotPrint) {
  AddFolder("a/x", SkippedLines(tool::kMostOfAFile + 2));
  AddFolder("a/y", SkippedLines(1));
  const std::string file = folder_ / "a/x/helpmap.txt";
  const ToolRun run = Check();
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(LinesOf(run.out), tool::kMostOfAFile + 1) << "the other file's too";
  EXPECT_EQ(run.err, file +
                         ": 2 more findings; --all prints all\n"
                         "0 errors, 1003 warnings\n");
  const Json report = Json::parse(Check({"--json"}).out);
  EXPECT_EQ(report["findings"].size(), tool::kMostOfAFile + 1);
  EXPECT_EQ(report["warnings"], tool::kMostOfAFile + 3);
  EXPECT_EQ(report["left_out"], Json({{{"file", file}, {"count", 2}}}));
  const Json log = Json::parse(Check({"--format", "sarif"}).out);
  const Json& run_of_log = log["runs"][0];
  EXPECT_EQ(run_of_log["results"].size(), tool::kMostOfAFile + 1);
  EXPECT_THAT(run_of_log["invocations"][0]["toolExecutionNotifications"][0]
                        ["message"]["text"]
                            .get<std::string>(),
              HasSubstr("2 more findings"));
}

TEST_F(CheckCommand, PrintsAllFindingsWhenAsked) {
  AddFolder("a", SkippedLines(tool::kMostOfAFile + 2));
  const ToolRun run = Check({"--all"});
  EXPECT_EQ(LinesOf(run.out), tool::kMostOfAFile + 2);
  EXPECT_EQ(run.err, "0 errors, 1002 warnings\n");
  const std::string known = folder_.Write("known.txt", run.out);
  EXPECT_EQ(Check({"--baseline", known}).status, 0);
}

TEST_F(CheckCommand, LeavesOutFindingsByName) {
  AddFolder("a", kMap);
  EXPECT_EQ(Check({"--without", "unreachable-key"}).status, 0);
  EXPECT_EQ(Check({"--without", "no-home"}).status, 1);
}

TEST_F(CheckCommand, AcceptsWhatTheBaselineHas) {
  AddFolder("a", kMap);
  const std::string known = folder_.Write("known.txt", Check().out);
  EXPECT_EQ(Check({"--baseline", known}).status, 0);
  AddFolder("a", "VX_HOME\tb.html\nx\tb.html\nmy page\tb.html\n");
  EXPECT_EQ(Check({"--baseline", known}).status, 0);
  AddFolder("a", std::string(kMap) + "new page\tb.html\n");
  EXPECT_THAT(Check({"--baseline", known}).out, HasSubstr("new page"));
}

TEST_F(CheckCommand, AcceptsADuplicateWhoseFirstLineMoved) {
  AddFolder("a", "VX_HOME\tb.html\nx\tb.html\nx\tb.html\n");
  const std::string known = folder_.Write("known.txt", Check().out);
  AddFolder("a", "VX_HOME\tb.html\ny\tb.html\nx\tb.html\nx\tb.html\n");
  EXPECT_EQ(Check({"--baseline", known}).status, 0);
}

TEST_F(CheckCommand, FindsIdsOfTheApplicationThatNoMapHas) {
  AddFolder("a", kCleanMap);
  const std::string ids =
      folder_.Write("ids.txt", "my page\r\nVX_HOME\n\nhttp://x/\nother\n");
  EXPECT_THAT(Check({"--ids", ids}).out,
              HasSubstr(ids + ":5:1: error: no help map has the id \"other\""));
  EXPECT_THAT(NamesWith({"--ids", ids}), ElementsAre("unmapped-id"));
}

TEST_F(CheckCommand, FindsNoIdInAMapWithoutAHomePage) {
  AddFolder("a", "my_page\tb.html\n");
  const std::string ids = folder_.Write("ids.txt", "my page\n");
  EXPECT_THAT(NamesWith({"--ids", ids}), ElementsAre("no-home", "unmapped-id"));
}

TEST_F(CheckCommand, FindsIdsThatVanished) {
  AddFolder("a", kCleanMap);
  AddFolder("old", "VX_HOME\tb.html\nmy_page\tb.html\ngone\tb.html\n");
  EXPECT_THAT(Check({"--against", folder_ / "old"}).out,
              HasSubstr("old/helpmap.txt:3:1: error: no help map has the id "
                        "\"gone\" any more [vanished-id]"));
  AddFolder("old", kCleanMap);
  EXPECT_EQ(Check({"--against", folder_ / "old"}).status, 0);
}

TEST_F(CheckCommand, FindsWhatALocaleLacks) {
  AddFolder("a/en_US/c", kCleanMap);
  AddFolder("a/de_DE/c", kCleanMap);
  EXPECT_EQ(Check({"--locales"}).status, 0);
  AddFolder("a/en_US/c", std::string(kCleanMap) + "new\tn.html\n");
  folder_.Write("a/en_US/c/n.html", "<title>t</title>");
  const ToolRun run = Check({"--locales"});
  EXPECT_EQ(run.out,
            folder_ / "a/de_DE/c/helpmap.txt" +
                ":1:1: error: de_DE lacks the id \"new\", which en_US has "
                "[missing-in-locale]\n" +
                folder_ / "a/de_DE/c/helpmap.txt" +
                ":1:1: error: de_DE lacks the page \"n.html\", which en_US "
                "has [missing-in-locale]\n");
}

TEST_F(CheckCommand, RefusesToCompareOneLocale) {
  AddFolder("a/en_US/c", kCleanMap);
  EXPECT_EQ(Check({"--locales"}).status, tool::kExitFile);
}

TEST_F(CheckCommand, NeedsSomethingToCheck) {
  EXPECT_EQ(RunTool({"check"}).status, tool::kExitUsage);
  EXPECT_EQ(Check().status, tool::kExitFile);
  std::filesystem::create_directory(folder_ / "a");
  EXPECT_EQ(Check().status, tool::kExitFile);
}

TEST_F(CheckCommand, GoesOnAfterAnUnreadableMap) {
  AddFolder("a/x", kMap);
  AddFolder("a/y", "");
  std::filesystem::resize_file(folder_ / "a/y/helpmap.txt", kHelpMapLimit + 1);
  EXPECT_THAT(NamesWith({}), ElementsAre("unreachable-key", "unreadable"));
}

TEST_F(CheckCommand, WritesNothing) {
  AddFolder("a", kMap);
  const auto before = std::filesystem::last_write_time(folder_ / "a");
  Check({"--format", "sarif"});
  EXPECT_EQ(std::filesystem::last_write_time(folder_ / "a"), before);
}

TEST(Rules, HaveDifferentNames) {
  std::set<std::string_view> names;
  for (const tool::Rule* rule : tool::rules::kAll) names.insert(rule->name);
  EXPECT_EQ(names.size(), std::size(tool::rules::kAll));
}

TEST(Rules, AreInTheDocument) {
  const std::string document =
      testing::FileText(VELMO_SOURCE_DIR "/docs/tool.md");
  for (const tool::Rule* rule : tool::rules::kAll) {
    const bool is_error = rule->severity == tool::Severity::kError;
    EXPECT_THAT(document, HasSubstr("| `" + std::string(rule->name) + "` | " +
                                    (is_error ? "error" : "warning")));
  }
}

class ProgressBar : public ::testing::Test {
 protected:
  std::string DrawnAfter(std::chrono::milliseconds time, bool is_terminal) {
    std::ostringstream out;
    const tool::Console console{
        .out = out, .err = out, .err_is_terminal = is_terminal};
    const tool::Progress::Clock::time_point start;
    tool::Progress(console, start).Show(1, 4, start + time);
    return out.str();
  }
};

TEST_F(ProgressBar, IsDrawnAfterASecondAndCleared) {
  using std::chrono::milliseconds;
  EXPECT_EQ(DrawnAfter(milliseconds(999), true), "");
  EXPECT_EQ(DrawnAfter(milliseconds(1000), true),
            "\r[##########                              ] 1/4 pages"
            "\r\x1B[K");
}

TEST_F(ProgressBar, IsForTerminalsOnly) {
  EXPECT_EQ(DrawnAfter(std::chrono::milliseconds(5000), false), "");
}

}  // namespace
}  // namespace velmohelp
