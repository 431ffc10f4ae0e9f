#include <gtest/gtest.h>
#include <velmohelp/text.h>

#include <cstdio>

#include "tests/support/random_text.h"

namespace velmohelp::testing {
namespace {

std::string OracleEncoded(const std::string& text) {
  std::string encoded;
  for (const char byte : text) encoded += urlencode(std::string(1, byte));
  return encoded;
}

TEST(SearchTerm, LeavesOnlyLettersDigitsAndSixMarks) {
  const std::string passing =
      "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz'()*!~";
  for (const char byte : AllBytes()) {
    const bool passes = passing.find(byte) != std::string::npos;
    const std::string text(1, byte);
    EXPECT_EQ(urlencode(text), passes ? text : "%" + char2hex(byte));
  }
}

TEST(SearchTerm, IsEncodedByteByByte) {
  EXPECT_EQ(urlencode(""), "");
  EXPECT_EQ(urlencode("a-b_c.d"), "a%2db%5fc%2ed");
  EXPECT_EQ(urlencode("\xC3\x9C"), "%c3%9c");
  EXPECT_EQ(urlencode("a b+c%20"), "a%20b%2bc%2520");
  EXPECT_EQ(urlencode("http://x/?q"), "http%3a%2f%2fx%2f%3fq");
  EXPECT_EQ(urlencode(std::string("\0\xFF", 2)), "%00%ff");
}

TEST(SearchTerm, IsEncodedByteByByteAtAnyLength) {
  RandomText random("abcXYZ019'*~ -_.&\xC3\x9C@[`{/:");
  for (std::size_t length = 0; length < 80; ++length) {
    const std::string text = random.Next(length);
    EXPECT_EQ(urlencode(text), OracleEncoded(text));
  }
  for (const std::size_t length : {4079U, 4080U, 4081U, 4096U, 10'000U}) {
    const std::string text(length, 'a');
    EXPECT_EQ(urlencode(text), text);
    EXPECT_EQ(urlencode(text + "."), text + "%2e");
    EXPECT_EQ(urlencode("." + text), "%2e" + text);
  }
}

TEST(SearchTerm, MayBeMegabytes) {
  EXPECT_EQ(urlencode(std::string(4'000'000, ' ')).size(), 12'000'000);
}

TEST(HexDigits, AreLowerCaseAndTwoForEveryByte) {
  for (const char byte : AllBytes()) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x",
                  static_cast<unsigned>(static_cast<unsigned char>(byte)));
    EXPECT_EQ(char2hex(byte), digits);
  }
  EXPECT_EQ(char2hex('\x3F'), "3f");
  EXPECT_EQ(char2hex('\xC3'), "c3");
}

}  // namespace
}  // namespace velmohelp::testing
