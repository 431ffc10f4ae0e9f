#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/config.h>

#include <vector>

#include "config/key_scanner.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

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
    {.sentence =
         "the first path is skipped and flags are counted from the first",
     .text = R"(path="own" path="a" contextSensitivity="yes" path="b"
        contextSensitivity="No")",
     .count = 2,
     .first_rows = {{"a", "YES"}, {"b", "NO"}, {"old", "old"}}},
    {.sentence = "a text without a path changes nothing",
     .text = R"(contextSensitivity="yes" Path="a" PATH="b")",
     .count = 100,
     .first_rows = {{"old", "old"}}},
    {.sentence = "one path alone fills no folder but flags count",
     .text = R"(path="own" contextSensitivity="yes")",
     .count = 1,
     .first_rows = {{"old", "YES"}, {"old", "old"}}},
    {.sentence = "paths without flags fill rows that do not count",
     .text = R"(path="own" path="a" path="b")",
     .count = 0,
     .first_rows = {{"a", "old"}, {"b", "old"}, {"old", "old"}}},
    {.sentence = "more flags than folders count and leave stale folders",
     .text =
         R"(path="own" path="a" contextSensitivity="yes" contextSensitivity="x")",
     .count = 2,
     .first_rows = {{"a", "YES"}, {"old", "X"}}},
    {.sentence = "more folders than flags leave stale flags",
     .text = R"(path="own" path="a" path="b" contextSensitivity="yes")",
     .count = 1,
     .first_rows = {{"a", "YES"}, {"b", "old"}}},
    {.sentence = "a flag before the first path counts",
     .text = R"(contextSensitivity="yes" path="own" path="a")",
     .count = 1,
     .first_rows = {{"a", "YES"}}},
    {.sentence = "an empty folder runs on to the following quote",
     .text = R"(path="own" path="" x="y" path="b" contextSensitivity="YES")",
     .count = 1,
     .first_rows = {{R"(" x=)", "YES"}, {"b", "old"}}},
    {.sentence = "an empty flag runs on to the following quote",
     .text = R"(path="own" path="a" contextSensitivity="" x="y")",
     .count = 1,
     .first_rows = {{"a", R"(" X=)"}}},
    {.sentence = "a quote after a backslash does not end a folder",
     .text = R"(path="own" path="a\"b\"" contextSensitivity="YES")",
     .count = 1,
     .first_rows = {{R"(a\"b\")", "YES"}}},
    {.sentence = "a quote after a backslash does not end a flag",
     .text = R"(path="own" path="a" contextSensitivity="y\"e")",
     .count = 1,
     .first_rows = {{"a", R"(Y\"E)"}}},
    {.sentence = "a value that begins with an escaped quote goes on",
     .text = R"(path="own" path="\"a" contextSensitivity="YES")",
     .count = 1,
     .first_rows = {{R"(\"a)", "YES"}}},
    {.sentence = "the two bytes after the key are skipped whatever they are",
     .text = R"(path="own" path: a" contextSensitivity='"no")",
     .count = 1,
     .first_rows = {{"a", R"("NO)"}}},
    {.sentence = "spaces around the equals sign shift the value",
     .text = R"(path="own" path = "ab" contextSensitivity="YES")",
     .count = 1,
     .first_rows = {{" ", "YES"}}},
    {.sentence = "a path inside a word counts",
     .text = R"(path="own" xpaths="ab" contextSensitivity="YES")",
     .count = 1,
     .first_rows = {{R"("ab)", "YES"}}},
    {.sentence = "a path inside a value counts",
     .text = R"(path="own/path/1" path="b" contextSensitivity="YES")",
     .count = 1,
     .first_rows = {{R"(" path=)", "YES"}, {"b", "old"}}},
    {.sentence = "the first path may be any word that holds the letters",
     .text = R"(paths="x" path="own" contextSensitivity="YES")",
     .count = 1,
     .first_rows = {{"own", "YES"}}},
    {.sentence = "a folder without a closing quote ends the folders",
     .text = R"(path="own" contextSensitivity="yes" path="a)",
     .count = 1,
     .first_rows = {{"old", "YES"}}},
    {.sentence = "a flag without a closing quote ends the flags",
     .text =
         R"(path="own" path="a" contextSensitivity="yes" contextSensitivity="no)",
     .count = 1,
     .first_rows = {{"a", "YES"}, {"old", "old"}}},
    {.sentence = "keys at the very end have no value",
     .text =
         R"(path="own" path="a" contextSensitivity="b" path contextSensitivity)",
     .count = 1,
     .first_rows = {{"a", "B"}, {"old", "old"}}},
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

TEST(PathTableCapacity, OfOneFillsOneRow) {
  Table table(1);
  ScanContentFolders(TextOf(3), table.rows, table.count);
  EXPECT_EQ(table.count, 1);
  EXPECT_THAT(table.First(2), ElementsAre(Pair("0", "F0"), Pair("old", "old")));
}

TEST(PathTableCapacity, BelowOneFillsNothingAndBecomesZero) {
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
  const TemporaryDirectory folder;
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
