#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/resolve.h>

#include <array>
#include <vector>

#include "tests/support/random_text.h"
#include "tests/support/sentence.h"
#include "tests/support/temp_folder.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ITEMInternal::GetLine;
using Lines = std::vector<std::string>;

Lines LinesOf(std::ifstream& stream) {
  Lines lines;
  std::string line;
  while (GetLine(stream, line)) lines.push_back(line);
  EXPECT_TRUE(stream.good());
  return lines;
}

Lines LinesOfFile(const std::string& bytes) {
  const TempFolder folder;
  std::ifstream stream(folder.Write("x", bytes), std::ios_base::binary);
  return LinesOf(stream);
}

struct Row {
  const char* sentence;
  std::string bytes;
  Lines lines;
};

class Line : public ::testing::TestWithParam<Row> {};

TEST_P(Line, IsDelivered) {
  EXPECT_EQ(LinesOfFile(GetParam().bytes), GetParam().lines);
}

const Row kRows[] = {
    {"an empty file has no line", "", {}},
    {"a line feed ends a line", "a\nb\n", {"a", "b"}},
    {"a carriage return ends a line", "a\rb\r", {"a", "b"}},
    {"both together end one line", "a\r\nb\r\n", {"a", "b"}},
    {"the other way about they end two", "a\n\rb", {"a", "", "b"}},
    {"two carriage returns end two lines", "a\r\rb", {"a", "", "b"}},
    {"a second carriage return takes the line feed",
     "a\r\r\nb",
     {"a", "", "b"}},
    {"all ends may be mixed", "a\rb\tc\n", {"a", "b\tc"}},
    {"the last line needs no end", "a\nb", {"a", "b"}},
    {"a carriage return as the last byte ends its line", "a\r", {"a"}},
    {"a line feed alone is one empty line", "\n", {""}},
    {"a carriage return alone is one empty line", "\r", {""}},
    {"both alone are one empty line", "\r\n", {""}},
    {"empty lines are delivered", "\n\r\n\ra", {"", "", "", "a"}},
    {"a NUL byte is a byte like others", "a\0b\n\0"s, {"a\0b"s, "\0"s}},
    {"bytes above 127 are bytes like others",
     "\xFF\xFE\n\xFF",
     {"\xFF\xFE", "\xFF"}},
    {"blanks and TABs stay", "  a \t\n \n", {"  a \t", " "}},
    {"other controls end nothing",
     "a\v\f\x1A\xC2\x85z\n",
     {"a\v\f\x1A\xC2\x85z"}},
};

INSTANTIATE_TEST_SUITE_P(OfAFile, Line, ::testing::ValuesIn(kRows),
                         SentenceOf());

TEST(LineAtABufferBorder, KeepsItsEndTogether) {
  const TempFolder folder;
  for (const std::string end : {"\n", "\r", "\r\n"}) {
    for (std::size_t length = 0; length < 10; ++length) {
      const std::string bytes = std::string(length, 'a') + end + "b" + end;
      const std::string path = folder.Write("x", bytes);
      for (const std::streamsize size : {0, 1, 2, 3, 4, 5}) {
        std::array<char, 8> buffer;
        std::ifstream stream;
        stream.rdbuf()->pubsetbuf(buffer.data(), size);
        stream.open(path, std::ios_base::binary);
        EXPECT_EQ(LinesOf(stream), (Lines{std::string(length, 'a'), "b"}));
      }
    }
  }
}

TEST(LineAtABufferBorder, KeepsItsEndTogetherInTheStreamsOwnBuffer) {
  for (const std::size_t border : {1024U, 4096U, 8191U, 8192U, 65536U}) {
    for (const int shift : {-2, -1, 0, 1}) {
      const std::string line(border + static_cast<std::size_t>(shift), 'a');
      EXPECT_EQ(LinesOfFile(line + "\r\nb"), (Lines{line, "b"}));
    }
  }
}

class LineOfAStreamThatIsNotGood : public ::testing::Test {
 protected:
  static void ExpectTrueAndTheLineKept(std::ifstream& stream) {
    std::string line = "before";
    EXPECT_TRUE(GetLine(stream, line));
    EXPECT_EQ(line, "before");
    EXPECT_TRUE(stream.fail());
  }
  const TempFolder folder;
};

TEST_F(LineOfAStreamThatIsNotGood, IsKeptAtTheEndFlag) {
  std::ifstream stream(folder.Write("x", "a\n"));
  stream.setstate(std::ios_base::eofbit);
  ExpectTrueAndTheLineKept(stream);
}

TEST_F(LineOfAStreamThatIsNotGood, IsKeptAtTheFailFlag) {
  std::ifstream stream(folder.Path("missing"));
  ExpectTrueAndTheLineKept(stream);
}

TEST_F(LineOfAStreamThatIsNotGood, IsKeptAtTheBadFlag) {
  std::ifstream stream(folder.Write("x", "a\n"));
  stream.setstate(std::ios_base::badbit);
  ExpectTrueAndTheLineKept(stream);
}

TEST(LineAtTheEnd, IsEmptiedAndSetsNoFlagHoweverOftenItIsAskedFor) {
  const TempFolder folder;
  std::ifstream stream(folder.Write("x", "a"), std::ios_base::binary);
  std::string line;
  EXPECT_TRUE(GetLine(stream, line));
  for (int i = 0; i < 3; ++i) {
    line = "before";
    EXPECT_FALSE(GetLine(stream, line));
    EXPECT_EQ(line, "");
    EXPECT_TRUE(stream.good());
  }
}

TEST(LineOfADirectory, RaisesTheStreamsFailure) {
  const TempFolder folder;
  std::ifstream stream(folder.Path());
  std::string line;
  EXPECT_THROW(GetLine(stream, line), std::ios_base::failure);
}

TEST(LineOfMegabytes, IsDeliveredWhole) {
  const std::string line(8'000'000, 'a');
  EXPECT_EQ(LinesOfFile(line + "\r\n" + line), (Lines{line, line}));
}

}  // namespace
}  // namespace velmohelp::testing
