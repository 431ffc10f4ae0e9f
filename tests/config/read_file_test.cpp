#include <gtest/gtest.h>
#include <sys/stat.h>
#include <velmohelp/config.h>

#include "tests/support/key_oracle.h"
#include "tests/support/random_text.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;

constexpr std::size_t kPiece = 1023;
const std::string kOpening = "k=\"";

/// `k="` and as many letters as fill the first piece.
const std::string kFullPiece = kOpening + std::string(kPiece - 3, 'a');

struct Row {
  const char* sentence;
  std::string bytes;
  std::string value;
};

class Pieces : public ::testing::TestWithParam<Row> {};

TEST_P(Pieces, AreReadUpToTheirFirstZeroByte) {
  const TemporaryDirectory folder;
  XMLParser parser;
  ASSERT_TRUE(parser.ReadFileToBuffer(folder.Write("x", GetParam().bytes)));
  EXPECT_EQ(parser.GetKey("k"), GetParam().value);
}

const std::string kLetters(kPiece - 3, 'a');
const std::string kLettersLessOne(kPiece - 4, 'a');

const Row kRows[] = {
    {.sentence = "a file of one piece is whole",
     .bytes = "k=\"b\"",
     .value = "b"},
    {.sentence = "a value runs on over the border of a piece",
     .bytes = kFullPiece + "b\"",
     .value = kLetters + "b"},
    {.sentence = "a quote may be the last byte of a piece",
     .bytes = kOpening + kLettersLessOne + "\"",
     .value = kLettersLessOne},
    {.sentence = "a zero byte drops the rest of its piece",
     .bytes = "k=\"b\"\0k=\"c\""s,
     .value = "b"},
    {.sentence = "a value cut by a zero byte in the only piece is not found",
     .bytes = "k=\"b\0c\""s,
     .value = ""},
    {.sentence = "a value cut by a zero byte goes on with the next piece",
     .bytes = kOpening + "b\0"s + std::string(kPiece - 5, 'x') + "c\"",
     .value = "bc"},
    {.sentence = "a zero byte at the end of a piece drops only itself",
     .bytes = kOpening + kLettersLessOne + "\0b\""s,
     .value = kLettersLessOne + "b"},
    {.sentence = "a zero byte at the start of a piece drops all of it",
     .bytes = kFullPiece + "\0"s + std::string(kPiece - 1, 'x') + "b\"",
     .value = kLetters + "b"},
    {.sentence = "a zero byte at the start of the last piece drops all of it",
     .bytes = kFullPiece + "\0b\""s,
     .value = ""},
    {.sentence = "a second zero byte of a piece drops nothing more",
     .bytes = kOpening + "b\0x\0"s + std::string(kPiece - 7, 'x') + "c\"",
     .value = "bc"},
};

INSTANTIATE_TEST_SUITE_P(OfAFile, Pieces, ::testing::ValuesIn(kRows),
                         SentenceOf());

TEST(PiecesOfRandomFiles, AreReadAsTheOracleReadsThem) {
  const TemporaryDirectory folder;
  RandomText random(std::string(700, 'a') + "\0"s);
  for (const std::size_t pieces : {1U, 2U, 63U, 64U, 65U, 128U, 200U}) {
    for (const int more : {-1, 0, 1, 500}) {
      const std::size_t size = pieces * kPiece + static_cast<std::size_t>(more);
      const std::string bytes = kOpening + random.Next(size - 4) + "\"";
      XMLParser parser;
      ASSERT_TRUE(parser.ReadFileToBuffer(folder.Write("x", bytes)));
      EXPECT_EQ(parser.GetKey("k"), OracleKey(OracleBuffer(bytes), "k"));
    }
  }
}

class Unreadable : public ::testing::Test {
 protected:
  /// Reads path with a parser that has read a good file before.
  void ExpectFalseAndEmpty(const std::string& path) {
    XMLParser parser;
    ASSERT_TRUE(parser.ReadFileToBuffer(folder.Write("good", "k=\"v\"")));
    ASSERT_EQ(parser.GetKey("k"), "v");
    EXPECT_FALSE(parser.ReadFileToBuffer(path));
    EXPECT_EQ(parser.GetKey("k"), "");
  }
  const TemporaryDirectory folder;
};

TEST_F(Unreadable, IsAnEmptyPath) { ExpectFalseAndEmpty(""); }

TEST_F(Unreadable, IsAMissingFile) { ExpectFalseAndEmpty(folder / "missing"); }

TEST_F(Unreadable, IsADirectory) { ExpectFalseAndEmpty(folder.path()); }

TEST_F(Unreadable, IsAFileBelowAFile) {
  ExpectFalseAndEmpty(folder.Write("file", "") + "/x");
}

TEST_F(Unreadable, IsAPipeAndDoesNotBlock) {
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  ExpectFalseAndEmpty(folder / "pipe");
}

TEST_F(Unreadable, IsADeviceThatNeverEnds) { ExpectFalseAndEmpty("/dev/zero"); }

TEST_F(Unreadable, IsAFileWithoutReadPermission) {
  if (geteuid() == 0) GTEST_SKIP() << "root may read every file";
  const std::string path = folder.Write("x", "k=\"w\"");
  chmod(path.c_str(), 0);
  ExpectFalseAndEmpty(path);
}

TEST(Parser, HasNoKeysBeforeItHasReadAFile) {
  EXPECT_EQ(XMLParser().GetKey("k"), "");
  EXPECT_EQ(XMLParser().GetKey(""), "");
}

TEST(Parser, ReadsAnEmptyFile) {
  const TemporaryDirectory folder;
  XMLParser parser;
  EXPECT_TRUE(parser.ReadFileToBuffer(folder.Write("x", "")));
  EXPECT_EQ(parser.GetKey("k"), "");
}

TEST(Parser, ForgetsTheFileBefore) {
  const TemporaryDirectory folder;
  XMLParser parser;
  parser.ReadFileToBuffer(folder.Write("a", "k=\"v\""));
  EXPECT_TRUE(parser.ReadFileToBuffer(folder.Write("b", "j=\"w\"")));
  EXPECT_EQ(parser.GetKey("k"), "");
  EXPECT_EQ(parser.GetKey("j"), "w");
}

TEST(Parser, ReadsTenMegabytesOfZeroBytesToTheirEnd) {
  const TemporaryDirectory folder;
  const std::string path = folder.Write("x", "");
  std::filesystem::resize_file(path, kPiece * 10'000);
  std::ofstream(path, std::ios_base::app) << "k=\"v\"";
  XMLParser parser;
  EXPECT_TRUE(parser.ReadFileToBuffer(path));
  EXPECT_EQ(parser.GetKey("k"), "v");
}

TEST(Parser, ReadsBinaryBytesAsTheyAre) {
  const TemporaryDirectory folder;
  const std::string all = AllBytes().substr(1);
  XMLParser parser;
  parser.ReadFileToBuffer(folder.Write("x", all + "k=\"\r\n\x1A\xFF\""));
  EXPECT_EQ(parser.GetKey("k"), "\r\n\x1A\xFF");
}

}  // namespace
}  // namespace velmohelp::testing
