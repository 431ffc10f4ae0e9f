#include <gtest/gtest.h>
#include <velmohelp/text.h>
#include <velmohelp/velmohelp.h>

#include <cstring>
#include <limits>

#include "tests/support/random_text.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;

std::string Encoded(const std::string& text) {
  return ITEMInternal::VelmoHelpEncodeURIComponent(text);
}

struct Row {
  const char* sentence;
  std::string text;
  std::string encoded;
};

class EncodeUri : public ::testing::TestWithParam<Row> {};

TEST_P(EncodeUri, EscapesWhatIsNotLegalInAUrl) {
  EXPECT_EQ(Encoded(GetParam().text), GetParam().encoded);
}

TEST_P(EncodeUri, LeavesAnEscapedTextAsItIs) {
  EXPECT_EQ(Encoded(GetParam().encoded), GetParam().encoded);
}

const Row kRows[] = {
    {.sentence = "an empty text stays empty", .text = "", .encoded = ""},
    {.sentence = "a URL with a space",
     .text = "http://x/a b?q=1&r=2",
     .encoded = "http://x/a%20b?q=1&r=2"},
    {.sentence = "reserved characters stay",
     .text = ":/?#[]@!$&'()*+,;=",
     .encoded = ":/?#[]@!$&'()*+,;="},
    {.sentence = "unreserved characters stay",
     .text = "aZ09-._~",
     .encoded = "aZ09-._~"},
    {.sentence = "quotes brackets and braces are escaped",
     .text = "\"<>{}|\\^`",
     .encoded = "%22%3C%3E%7B%7D%7C%5C%5E%60"},
    {.sentence = "control characters are escaped",
     .text = "\x01\t\n\r\x7F",
     .encoded = "%01%09%0A%0D%7F"},
    {.sentence = "letters beyond ASCII are escaped byte by byte",
     .text = "\xC3\xBC\xE2\x82\xAC",
     .encoded = "%C3%BC%E2%82%AC"},
    {.sentence = "characters of four bytes are escaped byte by byte",
     .text = "\xF0\x9F\x98\x80",
     .encoded = "%F0%9F%98%80"},
    {.sentence = "an escape stays",
     .text = "a%20b%c3%BC",
     .encoded = "a%20b%c3%BC"},
    {.sentence = "an escaped percent sign stays",
     .text = "%25",
     .encoded = "%25"},
    {.sentence = "a percent sign before other letters is escaped",
     .text = "100% a%zz%2g",
     .encoded = "100%25%20a%25zz%252g"},
    {.sentence = "a percent sign at the end is escaped",
     .text = "a%",
     .encoded = "a%25"},
    {.sentence = "a percent sign before one digit is escaped",
     .text = "a%4",
     .encoded = "a%254"},
    {.sentence = "of two percent signs the first is escaped",
     .text = "%%41",
     .encoded = "%25%41"},
    {.sentence = "a text ends at its first zero byte",
     .text = "a b\0c"s,
     .encoded = "a%20b"},
    {.sentence = "bytes that are not valid UTF-8 give nothing",
     .text = "a\xFF",
     .encoded = ""},
    {.sentence = "an incomplete character gives nothing",
     .text = "a\xC3",
     .encoded = ""},
    {.sentence = "a surrogate gives nothing",
     .text = "\xED\xA0\x80",
     .encoded = ""},
    {.sentence = "a result of 1023 bytes fits",
     .text = std::string(1023, 'a'),
     .encoded = std::string(1023, 'a')},
    {.sentence = "a result of 1024 bytes gives nothing",
     .text = std::string(1024, 'a'),
     .encoded = ""},
    {.sentence = "a result of 1023 bytes of escapes fits",
     .text = std::string(341, ' '),
     .encoded =
         [] {
           std::string text;
           for (int i = 0; i < 341; ++i) text += "%20";
           return text;
         }()},
    {.sentence = "a result of 1026 bytes of escapes gives nothing",
     .text = std::string(342, ' '),
     .encoded = ""},
    {.sentence = "megabytes give nothing",
     .text = std::string(4'000'000, '%'),
     .encoded = ""},
};

INSTANTIATE_TEST_SUITE_P(OfAText, EncodeUri, ::testing::ValuesIn(kRows),
                         SentenceOf());

TEST(EncodeUriOfEachAsciiByte, EscapesAllButReservedAndUnreserved) {
  const std::string legal =
      "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
      "-._~:/?#[]@!$&'()*+,;=";
  for (char byte = 1; byte > 0 && byte < 127; ++byte) {
    const bool stays = legal.find(byte) != std::string::npos;
    EXPECT_EQ(Encoded(std::string(1, byte)).size(), stays ? 1 : 3) << byte;
  }
}

TEST(EncodeUriOfEscapedText, ChangesNothing) {
  RandomText random("%%%0aA /\"\xC3\xA4");
  for (int i = 0; i < 5000; ++i) {
    const std::string once = Encoded(random.Next(random.Below(20)));
    ASSERT_EQ(Encoded(once), once);
  }
}

class EncodeIntoABuffer : public ::testing::Test {
 protected:
  /// Encodes into a buffer full of "#" that is larger than size.
  long Encode(const char* in, long size) {
    std::memset(buffer, '#', sizeof buffer);
    return VelmoHelpEncodeURIComponent(in, buffer, size);
  }
  void ExpectUntouched() const {
    EXPECT_EQ(std::string(buffer, sizeof buffer), std::string(32, '#'));
  }
  char buffer[32] = {};
};

TEST_F(EncodeIntoABuffer, RefusesAnExactFitWithoutRoomForTheNul) {
  EXPECT_EQ(Encode("a b c d", 10), -1);
  ExpectUntouched();
  EXPECT_EQ(Encode("abcdefghij", 10), -1);
  ExpectUntouched();
}

TEST_F(EncodeIntoABuffer, WritesTextAndNulAndNothingMore) {
  EXPECT_EQ(Encode("abcdefghij", 11), 10);
  EXPECT_STREQ(buffer, "abcdefghij");
  EXPECT_EQ(buffer[11], '#');
  EXPECT_EQ(Encode("a b", 32), 5);
  EXPECT_STREQ(buffer, "a%20b");
  EXPECT_EQ(buffer[6], '#');
}

TEST_F(EncodeIntoABuffer, WritesAnEmptyTextIntoOneByte) {
  EXPECT_EQ(Encode("", 1), 0);
  EXPECT_STREQ(buffer, "");
  EXPECT_EQ(Encode("\xFF", 1), 0);
  EXPECT_STREQ(buffer, "");
  EXPECT_EQ(buffer[1], '#');
}

TEST_F(EncodeIntoABuffer, RefusesABufferOfNoBytesOrFewer) {
  for (const long size : {0L, -1L, -5L, std::numeric_limits<long>::min()}) {
    EXPECT_EQ(Encode("", size), -1) << size;
    EXPECT_EQ(Encode("a", size), -1) << size;
    ExpectUntouched();
  }
}

TEST_F(EncodeIntoABuffer, RefusesNullPointers) {
  EXPECT_EQ(Encode(nullptr, 32), -1);
  ExpectUntouched();
  EXPECT_EQ(VelmoHelpEncodeURIComponent("a", nullptr, 32), -1);
}

TEST_F(EncodeIntoABuffer, GivesNothingForAResultOver1023Bytes) {
  EXPECT_EQ(Encode(std::string(1024, 'a').c_str(), 32), 0);
  EXPECT_STREQ(buffer, "");
}

}  // namespace
}  // namespace velmohelp::testing
