#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/config.h>

#include <vector>

#include "config/key_scanner.h"
#include "tests/support/sentence.h"
#include "tests/support/temp_folder.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

/// A table whose rows hold something old, and one row more than it offers.
struct Table {
  explicit Table(int capacity) : count(capacity) {
    for (auto& row : rows) row[0] = row[1] = "old";
  }
  std::vector<std::pair<std::string, std::string>> First(int size) const {
    std::vector<std::pair<std::string, std::string>> first;
    for (int i = 0; i < size; ++i) first.emplace_back(rows[i][0], rows[i][1]);
    return first;
  }
  std::string rows[101][2];
  int count;
};

struct Row {
  const char* sentence;
  const char* text;
  int count;
  std::vector<std::pair<std::string, std::string>> first_rows;
};

class PathTable : public ::testing::TestWithParam<Row> {};

TEST_P(PathTable, IsFilled) {
  Table table(100);
  ScanContentFolders(GetParam().text, table.rows, table.count);
  EXPECT_EQ(table.count, GetParam().count);
  const auto& expected = GetParam().first_rows;
  EXPECT_EQ(table.First(static_cast<int>(expected.size())), expected);
}

const Row kRows[] = {
    {"the first path is skipped and flags are counted from the first",
     R"(path="own" path="a" contextSensitivity="yes" path="b"
        contextSensitivity="No")",
     2,
     {{"a", "YES"}, {"b", "NO"}, {"old", "old"}}},
    {"a text without a path changes nothing",
     R"(contextSensitivity="yes" Path="a" PATH="b")",
     100,
     {{"old", "old"}}},
    {"one path alone fills no folder but flags count",
     R"(path="own" contextSensitivity="yes")",
     1,
     {{"old", "YES"}, {"old", "old"}}},
    {"paths without flags fill rows that do not count",
     R"(path="own" path="a" path="b")",
     0,
     {{"a", "old"}, {"b", "old"}, {"old", "old"}}},
    {"more flags than folders count and leave stale folders",
     R"(path="own" path="a" contextSensitivity="yes" contextSensitivity="x")",
     2,
     {{"a", "YES"}, {"old", "X"}}},
    {"more folders than flags leave stale flags",
     R"(path="own" path="a" path="b" contextSensitivity="yes")",
     1,
     {{"a", "YES"}, {"b", "old"}}},
    {"a flag before the first path counts",
     R"(contextSensitivity="yes" path="own" path="a")",
     1,
     {{"a", "YES"}}},
    {"an empty folder runs on to the following quote",
     R"(path="own" path="" x="y" path="b" contextSensitivity="YES")",
     1,
     {{R"(" x=)", "YES"}, {"b", "old"}}},
    {"an empty flag runs on to the following quote",
     R"(path="own" path="a" contextSensitivity="" x="y")",
     1,
     {{"a", R"(" X=)"}}},
    {"a quote behind a backslash does not end a folder",
     R"(path="own" path="a\"b\"" contextSensitivity="YES")",
     1,
     {{R"(a\"b\")", "YES"}}},
    {"a quote behind a backslash does not end a flag",
     R"(path="own" path="a" contextSensitivity="y\"e")",
     1,
     {{"a", R"(Y\"E)"}}},
    {"a value that begins with an escaped quote goes on",
     R"(path="own" path="\"a" contextSensitivity="YES")",
     1,
     {{R"(\"a)", "YES"}}},
    {"the two bytes behind the key are skipped whatever they are",
     R"(path="own" path: a" contextSensitivity='"no")",
     1,
     {{"a", R"("NO)"}}},
    {"blanks around the equals sign shift the value",
     R"(path="own" path = "ab" contextSensitivity="YES")",
     1,
     {{" ", "YES"}}},
    {"a path inside a word counts",
     R"(path="own" xpaths="ab" contextSensitivity="YES")",
     1,
     {{R"("ab)", "YES"}}},
    {"a path inside a value counts",
     R"(path="own/path/1" path="b" contextSensitivity="YES")",
     1,
     {{R"(" path=)", "YES"}, {"b", "old"}}},
    {"the first path may be any word that holds the letters",
     R"(paths="x" path="own" contextSensitivity="YES")",
     1,
     {{"own", "YES"}}},
    {"a folder without a closing quote ends the folders",
     R"(path="own" contextSensitivity="yes" path="a)",
     1,
     {{"old", "YES"}}},
    {"a flag without a closing quote ends the flags",
     R"(path="own" path="a" contextSensitivity="yes" contextSensitivity="no)",
     1,
     {{"a", "YES"}, {"old", "old"}}},
    {"keys at the very end have no value",
     R"(path="own" path="a" contextSensitivity="b" path contextSensitivity)",
     1,
     {{"a", "B"}, {"old", "old"}}},
};

INSTANTIATE_TEST_SUITE_P(OfAText, PathTable, ::testing::ValuesIn(kRows),
                         SentenceOf());

/// So many folders "0", "1", ... with flags "f0", "f1", ...
std::string TextOf(int folders) {
  std::string text = R"(path="own")";
  for (int i = 0; i < folders; ++i) {
    const std::string number = std::to_string(i);
    text += " path=\"" + number + "\" contextSensitivity=\"f" + number + "\"";
  }
  return text;
}

TEST(PathTableCapacity, OfAHundredIsKeptWithMoreFoldersInTheText) {
  Table table(100);
  ScanContentFolders(TextOf(150), table.rows, table.count);
  EXPECT_EQ(table.count, 100);
  EXPECT_EQ(table.rows[99][0], "99");
  EXPECT_EQ(table.rows[99][1], "F99");
  EXPECT_EQ(table.rows[100][0], "old");
  EXPECT_EQ(table.rows[100][1], "old");
}

TEST(PathTableCapacity, OfOneTakesOneRow) {
  Table table(1);
  ScanContentFolders(TextOf(3), table.rows, table.count);
  EXPECT_EQ(table.count, 1);
  EXPECT_THAT(table.First(2), ElementsAre(Pair("0", "F0"), Pair("old", "old")));
}

TEST(PathTableCapacity, BelowOneFillsNothingAndBecomesNone) {
  for (const int capacity : {0, -1, -100}) {
    Table table(capacity);
    ScanContentFolders(TextOf(3), table.rows, table.count);
    EXPECT_EQ(table.count, 0);
    EXPECT_THAT(table.First(1), ElementsAre(Pair("old", "old")));
  }
}

TEST(PathTableCapacity, BelowOneStaysInATextWithoutAPath) {
  Table table(-7);
  ScanContentFolders("contextSensitivity=\"yes\"", table.rows, table.count);
  EXPECT_EQ(table.count, -7);
}

TEST(PathTableOfAParser, ComesFromItsFile) {
  const TempFolder folder;
  XMLParser parser;
  Table table(100);
  parser.PopulatePathArray(table.rows, table.count);
  EXPECT_EQ(table.count, 100);
  parser.ReadFileToBuffer(folder.Write("x", TextOf(2)));
  parser.PopulatePathArray(table.rows, table.count);
  EXPECT_EQ(table.count, 2);
  EXPECT_THAT(table.First(2), ElementsAre(Pair("0", "F0"), Pair("1", "F1")));
}

TEST(PathTableOfAParser, ComesFromMegabytesToo) {
  std::string text = TextOf(100);
  while (text.size() < 8'000'000) text += " path=\"x\" contextSensitivit";
  Table table(100);
  ScanContentFolders(text, table.rows, table.count);
  EXPECT_EQ(table.count, 100);
}

}  // namespace
}  // namespace velmohelp::testing
