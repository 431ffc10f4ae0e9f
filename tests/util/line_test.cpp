#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/resolve.h>

#include <array>
#include <vector>

#include "tests/support/random_text.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

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
  const TemporaryDirectory folder;
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
    {.sentence = "an empty file has no line", .bytes = "", .lines = {}},
    {.sentence = "a line feed ends a line",
     .bytes = "a\nb\n",
     .lines = {"a", "b"}},
    {.sentence = "a carriage return ends a line",
     .bytes = "a\rb\r",
     .lines = {"a", "b"}},
    {.sentence = "CR LF ends one line",
     .bytes = "a\r\nb\r\n",
     .lines = {"a", "b"}},
    {.sentence = "LF CR ends two lines",
     .bytes = "a\n\rb",
     .lines = {"a", "", "b"}},
    {.sentence = "two carriage returns end two lines",
     .bytes = "a\r\rb",
     .lines = {"a", "", "b"}},
    {.sentence = "a second carriage return consumes the line feed",
     .bytes = "a\r\r\nb",
     .lines = {"a", "", "b"}},
    {.sentence = "all line ends may be mixed",
     .bytes = "a\rb\tc\n",
     .lines = {"a", "b\tc"}},
    {.sentence = "the last line needs no end",
     .bytes = "a\nb",
     .lines = {"a", "b"}},
    {.sentence = "a carriage return as the last byte ends its line",
     .bytes = "a\r",
     .lines = {"a"}},
    {.sentence = "a line feed alone is one empty line",
     .bytes = "\n",
     .lines = {""}},
    {.sentence = "a carriage return alone is one empty line",
     .bytes = "\r",
     .lines = {""}},
    {.sentence = "CR LF alone is one empty line",
     .bytes = "\r\n",
     .lines = {""}},
    {.sentence = "empty lines are delivered",
     .bytes = "\n\r\n\ra",
     .lines = {"", "", "", "a"}},
    {.sentence = "a NUL byte is a byte like any other",
     .bytes = "a\0b\n\0"s,
     .lines = {"a\0b"s, "\0"s}},
    {.sentence = "bytes above 127 are bytes like any other",
     .bytes = "\xFF\xFE\n\xFF",
     .lines = {"\xFF\xFE", "\xFF"}},
    {.sentence = "spaces and tabs stay",
     .bytes = "  a \t\n \n",
     .lines = {"  a \t", " "}},
    {.sentence = "other control characters end nothing",
     .bytes = "a\v\f\x1A\xC2\x85z\n",
     .lines = {"a\v\f\x1A\xC2\x85z"}},
};

INSTANTIATE_TEST_SUITE_P(OfAFile, Line, ::testing::ValuesIn(kRows),
                         SentenceOf());

TEST(LineAtABufferBorder, KeepsItsEndTogether) {
  const TemporaryDirectory folder;
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
  const TemporaryDirectory folder;
};

TEST_F(LineOfAStreamThatIsNotGood, IsKeptAtTheEndFlag) {
  std::ifstream stream(folder.Write("x", "a\n"));
  stream.setstate(std::ios_base::eofbit);
  ExpectTrueAndTheLineKept(stream);
}

TEST_F(LineOfAStreamThatIsNotGood, IsKeptAtTheFailFlag) {
  std::ifstream stream(folder / "missing");
  ExpectTrueAndTheLineKept(stream);
}

TEST_F(LineOfAStreamThatIsNotGood, IsKeptAtTheBadFlag) {
  std::ifstream stream(folder.Write("x", "a\n"));
  stream.setstate(std::ios_base::badbit);
  ExpectTrueAndTheLineKept(stream);
}

TEST(LineAtTheEnd, IsEmptiedAndSetsNoFlagHoweverOftenItIsAskedFor) {
  const TemporaryDirectory folder;
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

TEST(LineOfADirectory, ThrowsTheStreamsFailure) {
  const TemporaryDirectory folder;
  std::ifstream stream(folder.path());
  std::string line;
  EXPECT_THROW(GetLine(stream, line), std::ios_base::failure);
}

TEST(LineOfMegabytes, IsDeliveredWhole) {
  const std::string line(8'000'000, 'a');
  EXPECT_EQ(LinesOfFile(line + "\r\n" + line), (Lines{line, line}));
}

}  // namespace
}  // namespace velmohelp::testing
