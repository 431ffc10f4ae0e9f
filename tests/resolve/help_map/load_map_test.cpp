#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <velmohelp/resolve.h>

#include "tests/support/random_text.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

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
  const TemporaryDirectory folder;
  Map map = {{"VX_HOME", "old"}, {"old", "old"}};
  const std::string path = folder.Write("helpmap.txt", GetParam().text);
  EXPECT_EQ(LoadMapFile(path, map), GetParam().complete);
  EXPECT_EQ(map, GetParam().map);
}

const Row kComplete[] = {
    {.sentence = "CR LF and no final end make two entries",
     .text = "VX_HOME\tstart.html\r\nfoo\tbar.html",
     .complete = true,
     .map = {{"VX_HOME", "start.html"}, {"foo", "bar.html"}}},
    {.sentence = "the home page alone makes it complete",
     .text = "VX_HOME\tx",
     .complete = true,
     .map = {{"VX_HOME", "x"}}},
    {.sentence = "the first entry of a key wins",
     .text = "foo\t1\nVX_HOME\ta\nfoo\t2\rVX_HOME\tb\nbar\t3\nfoo\t0",
     .complete = true,
     .map = {{"VX_HOME", "a"}, {"bar", "3"}, {"foo", "1"}}},
    {.sentence = "line ends may be mixed",
     .text = "a\t1\rb\t2\r\nc\t3\n\rVX_HOME\t4\r",
     .complete = true,
     .map = {{"VX_HOME", "4"}, {"a", "1"}, {"b", "2"}, {"c", "3"}}},
    {.sentence = "keys are compared byte by byte",
     .text = "VX_HOME\t1\nvx_home\t2\nVX_HOME \t3\n VX_HOME\t4",
     .complete = true,
     .map = {{"VX_HOME", "1"},
             {"vx_home", "2"},
             {"VX_HOME ", "3"},
             {" VX_HOME", "4"}}},
    {.sentence = "NUL bytes and bytes above 127 are kept",
     .text = "VX_HOME\t\0\n\xFF\0\t\xC3\xA4"s,
     .complete = true,
     .map = {{"VX_HOME", "\0"s}, {"\xFF\0"s, "\xC3\xA4"}}},
};

const Row kIncomplete[] = {
    {.sentence = "without the home page the entries stay",
     .text = "foo\tbar.html",
     .complete = false,
     .map = {{"foo", "bar.html"}}},
    {.sentence = "runs of tabs separate two fields and a third is ignored",
     .text = "foo\t\tbar.html\textra",
     .complete = false,
     .map = {{"foo", "bar.html"}}},
    {.sentence = "leading and trailing tabs are ignored",
     .text = "\t\tfoo\tbar\t\n",
     .complete = false,
     .map = {{"foo", "bar"}}},
    {.sentence = "a number sign does not begin a comment",
     .text = "#foo\tbar",
     .complete = false,
     .map = {{"#foo", "bar"}}},
    {.sentence = "spaces belong to the fields",
     .text = " a \t b ",
     .complete = false,
     .map = {{" a ", " b "}}},
    {.sentence = "a quote is a byte like any other",
     .text = "\"a\"\t'b",
     .complete = false,
     .map = {{"\"a\"", "'b"}}},
    {.sentence = "a space instead of a tab makes no entry",
     .text = "foo bar.html",
     .complete = false,
     .map = {}},
    {.sentence = "lines with one field make no entry",
     .text = "foo\n\tfoo\nfoo\t\n\t\n\n\tVX_HOME\t\nVX_HOME",
     .complete = false,
     .map = {}},
    {.sentence = "an empty file makes no entry",
     .text = "",
     .complete = false,
     .map = {}},
    {.sentence = "the home page as a value does not count",
     .text = "a\tVX_HOME",
     .complete = false,
     .map = {{"a", "VX_HOME"}}},
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
  const TemporaryDirectory folder;
  Map map = {{"VX_HOME", "old"}};
};

TEST_F(LoadMapThatFails, HasAnEmptyPath) { ExpectFalseAndEmpty(""); }

TEST_F(LoadMapThatFails, HasNoFile) { ExpectFalseAndEmpty(folder / "missing"); }

TEST_F(LoadMapThatFails, HasAPipeAndDoesNotBlock) {
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  ExpectFalseAndEmpty(folder / "pipe");
}

TEST_F(LoadMapThatFails, HasADevice) { ExpectFalseAndEmpty("/dev/zero"); }

TEST_F(LoadMapThatFails, HasAFileWithoutReadPermission) {
  if (geteuid() == 0) GTEST_SKIP() << "root may read every file";
  const std::string path = folder.Write("x", "VX_HOME\ta");
  chmod(path.c_str(), 0);
  ExpectFalseAndEmpty(path);
}

TEST_F(LoadMapThatFails, HasADirectoryAndThrowsTheStreamsFailure) {
  EXPECT_THROW(LoadMapFile(folder.path(), map), std::ios_base::failure);
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

TEST(LoadMapOfManyEntries, AcceptsThemInAnyOrder) {
  const TemporaryDirectory folder;
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
  const TemporaryDirectory folder;
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
