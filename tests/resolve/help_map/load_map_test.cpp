#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <velmohelp/resolve.h>

#include "tests/support/random_text.h"
#include "tests/support/sentence.h"
#include "tests/support/temp_folder.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ITEMInternal::LoadMapFile;
using Map = std::map<std::string, std::string>;

struct Row {
  const char* sentence;
  std::string text;
  bool complete;
  Map map;
};

class LoadMap : public ::testing::TestWithParam<Row> {};

TEST_P(LoadMap, FillsTheMap) {
  const TempFolder folder;
  Map map = {{"VX_HOME", "old"}, {"old", "old"}};
  const std::string path = folder.Write("helpmap.txt", GetParam().text);
  EXPECT_EQ(LoadMapFile(path, map), GetParam().complete);
  EXPECT_EQ(map, GetParam().map);
}

const Row kComplete[] = {
    {"CR LF and no final end make two entries",
     "VX_HOME\tstart.html\r\nfoo\tbar.html",
     true,
     {{"VX_HOME", "start.html"}, {"foo", "bar.html"}}},
    {"the home page alone makes it complete",
     "VX_HOME\tx",
     true,
     {{"VX_HOME", "x"}}},
    {"the first entry of a key wins",
     "foo\t1\nVX_HOME\ta\nfoo\t2\rVX_HOME\tb\nbar\t3\nfoo\t0",
     true,
     {{"VX_HOME", "a"}, {"bar", "3"}, {"foo", "1"}}},
    {"line ends may be mixed",
     "a\t1\rb\t2\r\nc\t3\n\rVX_HOME\t4\r",
     true,
     {{"VX_HOME", "4"}, {"a", "1"}, {"b", "2"}, {"c", "3"}}},
    {"keys are told apart byte by byte",
     "VX_HOME\t1\nvx_home\t2\nVX_HOME \t3\n VX_HOME\t4",
     true,
     {{"VX_HOME", "1"},
      {"vx_home", "2"},
      {"VX_HOME ", "3"},
      {" VX_HOME", "4"}}},
    {"NUL bytes and bytes above 127 are kept",
     "VX_HOME\t\0\n\xFF\0\t\xC3\xA4"s,
     true,
     {{"VX_HOME", "\0"s}, {"\xFF\0"s, "\xC3\xA4"}}},
};

const Row kIncomplete[] = {
    {"without the home page the entries stay",
     "foo\tbar.html",
     false,
     {{"foo", "bar.html"}}},
    {"runs of TABs part two fields and a third is ignored",
     "foo\t\tbar.html\textra",
     false,
     {{"foo", "bar.html"}}},
    {"leading and trailing TABs are ignored",
     "\t\tfoo\tbar\t\n",
     false,
     {{"foo", "bar"}}},
    {"a number sign begins no comment", "#foo\tbar", false, {{"#foo", "bar"}}},
    {"blanks belong to the fields", " a \t b ", false, {{" a ", " b "}}},
    {"a quote is a byte like others", "\"a\"\t'b", false, {{"\"a\"", "'b"}}},
    {"a blank in place of a TAB makes no entry", "foo bar.html", false, {}},
    {"lines with one field make no entry",
     "foo\n\tfoo\nfoo\t\n\t\n\n\tVX_HOME\t\nVX_HOME",
     false,
     {}},
    {"an empty file makes no entry", "", false, {}},
    {"the home page as a value does not count",
     "a\tVX_HOME",
     false,
     {{"a", "VX_HOME"}}},
};

INSTANTIATE_TEST_SUITE_P(Complete, LoadMap, ::testing::ValuesIn(kComplete),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Incomplete, LoadMap, ::testing::ValuesIn(kIncomplete),
                         SentenceOf());

class LoadMapThatFails : public ::testing::Test {
 protected:
  void ExpectFalseAndEmpty(const std::string& path) {
    EXPECT_FALSE(LoadMapFile(path, map));
    EXPECT_TRUE(map.empty());
  }
  const TempFolder folder;
  Map map = {{"VX_HOME", "old"}};
};

TEST_F(LoadMapThatFails, HasAnEmptyPath) { ExpectFalseAndEmpty(""); }

TEST_F(LoadMapThatFails, HasNoFile) {
  ExpectFalseAndEmpty(folder.Path("missing"));
}

TEST_F(LoadMapThatFails, HasAPipeWhichNobodyOpensAndNobodyWaitsFor) {
  ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  ExpectFalseAndEmpty(folder.Path("pipe"));
}

TEST_F(LoadMapThatFails, HasADevice) { ExpectFalseAndEmpty("/dev/zero"); }

TEST_F(LoadMapThatFails, HasAFileThatTheUserMayNotRead) {
  if (geteuid() == 0) GTEST_SKIP() << "root may read every file";
  const std::string path = folder.Write("x", "VX_HOME\ta");
  chmod(path.c_str(), 0);
  ExpectFalseAndEmpty(path);
}

TEST_F(LoadMapThatFails, HasADirectoryAndRaisesTheStreamsFailure) {
  EXPECT_THROW(LoadMapFile(folder.Path(), map), std::ios_base::failure);
  EXPECT_TRUE(map.empty());
}

TEST_F(LoadMapThatFails, HasAHundredMegabytesOfZeroBytes) {
  const std::string path = folder.Write("x", "");
  std::filesystem::resize_file(path, 100'000'000);
  ExpectFalseAndEmpty(path);
}

TEST_F(LoadMapThatFails, HasNothingButTabs) {
  ExpectFalseAndEmpty(folder.Write("x", std::string(8'000'000, '\t')));
}

TEST_F(LoadMapThatFails, HasNothingButEmptyLines) {
  ExpectFalseAndEmpty(folder.Write("x", std::string(8'000'000, '\r')));
}

TEST(LoadMapOfManyEntries, TakesThemInAnyOrder) {
  const TempFolder folder;
  std::string upwards = "VX_HOME\th\n";
  std::string downwards = "VX_HOME\th\n";
  for (int i = 0; i < 200'000; ++i) {
    upwards += std::to_string(1'000'000 + i) + "\tv\n";
    downwards += std::to_string(1'200'000 - i) + "\tv\n";
  }
  for (const std::string& text : {upwards, downwards}) {
    Map map;
    EXPECT_TRUE(LoadMapFile(folder.Write("x", text), map));
    EXPECT_EQ(map.size(), 200'001);
  }
}

TEST(LoadMapOfManyEntries, KeepsTheFirstOfAMillionForOneKey) {
  const TempFolder folder;
  std::string text = "k\tfirst\n";
  for (int i = 0; i < 1'000'000; ++i) text += "k\tx\n";
  Map map;
  EXPECT_FALSE(LoadMapFile(folder.Write("x", text), map));
  EXPECT_EQ(map, (Map{{"k", "first"}}));
}

TEST(MapPaths, AreJoinedToTheFolder) {
  using namespace ITEMInternal;
  EXPECT_EQ(GetHelpMapPath("/x/"), "/x/helpmap.txt");
  EXPECT_EQ(GetHelpMapPath("/x"), "/x/helpmap.txt");
  EXPECT_EQ(GetHelpMapPath(""), "helpmap.txt");
  EXPECT_EQ(GetHelpMapBaseUrlPath("/x/"), "/x/helpmapBaseUrl.txt");
  EXPECT_EQ(GetHelpMapBaseUrlPath("/x"), "/x/helpmapBaseUrl.txt");
  EXPECT_EQ(GetHelpMapBaseUrlPath(""), "helpmapBaseUrl.txt");
}

}  // namespace
}  // namespace velmohelp::testing
