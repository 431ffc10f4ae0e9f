#include "util/utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "tests/support/random_text.h"

namespace velmohelp::testing {
namespace {

constexpr char32_t kLast = 0x10FFFF;

bool IsSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

/// A code point in its one form (RFC 3629, section 3).
std::string Encoding(char32_t c) {
  const auto tail = [&](int shift) {
    return static_cast<char>(0x80 | ((c >> shift) & 0x3F));
  };
  if (c < 0x80) return {static_cast<char>(c)};
  if (c < 0x800) return {static_cast<char>(0xC0 | (c >> 6)), tail(0)};
  if (c < 0x10000) {
    return {static_cast<char>(0xE0 | (c >> 12)), tail(6), tail(0)};
  }
  return {static_cast<char>(0xF0 | (c >> 18)), tail(12), tail(6), tail(0)};
}

/// The code point that text would be if its first and other bytes were what
/// its length asks for.
char32_t Decoded(std::string_view text) {
  constexpr unsigned char kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  char32_t c = static_cast<unsigned char>(text[0]) & kLeadBits[text.size()];
  for (const char byte : text.substr(1)) {
    c = c << 6 | (static_cast<unsigned char>(byte) & 0x3F);
  }
  return c;
}

/// The definition, read from the other side: text is what its code point is
/// encoded as.
bool IsCharacter(std::string_view text) {
  const char32_t c = Decoded(text);
  return c <= kLast && !IsSurrogate(c) && Encoding(c) == text;
}

/// Whether text can be cut into characters, tried in every way.
bool IsSlowlyUtf8(std::string_view text) {
  if (text.empty()) return true;
  for (std::size_t size = 1; size <= 4 && size <= text.size(); ++size) {
    if (IsCharacter(text.substr(0, size)) && IsSlowlyUtf8(text.substr(size))) {
      return true;
    }
  }
  return false;
}

TEST(Utf8, OfEveryCharacterIsValidWithItsUtf16Length) {
  EXPECT_TRUE(IsUtf8(""));
  EXPECT_EQ(Utf16Length(""), 0);
  for (char32_t c = 0; c <= kLast; ++c) {
    const std::string text = Encoding(c);
    ASSERT_EQ(IsUtf8(text), !IsSurrogate(c)) << static_cast<unsigned>(c);
    ASSERT_TRUE(IsSurrogate(c) || Utf16Length(text) == (c < 0x10000 ? 1 : 2));
  }
}

TEST(Utf8, OfUpToThreeBytesIsAsTheSlowRuleHasIt) {
  for (std::size_t size = 1; size <= 3; ++size) {
    for (int number = 0; number < 1 << (8 * size); ++number) {
      const char bytes[] = {static_cast<char>(number >> 16),
                            static_cast<char>(number >> 8),
                            static_cast<char>(number)};
      const std::string_view text(bytes + 3 - size, size);
      ASSERT_EQ(IsUtf8(text), IsSlowlyUtf8(text))
          << ::testing::PrintToString(std::string(text));
    }
  }
}

TEST(Utf8, OfFourToEightBytesIsAsTheSlowRuleHasIt) {
  RandomText near("\xEF\xF0\xF3\xF4\xF5\x8F\x90\x80\xBF\x7F\xC0\xC2\xED\xA0");
  for (int i = 0; i < 50'000; ++i) {
    const std::string text = near.Next(4 + near.Below(5));
    ASSERT_EQ(IsUtf8(text), IsSlowlyUtf8(text))
        << ::testing::PrintToString(text);
  }
}

TEST(Utf8, OfFourBytesHasItsBounds) {
  EXPECT_TRUE(IsUtf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
  EXPECT_FALSE(IsUtf8("\xF0\x8F\xBF\xBF"));
  EXPECT_FALSE(IsUtf8("\xF4\x90\x80\x80"));
  EXPECT_FALSE(IsUtf8("\xF5\x80\x80\x80"));
  EXPECT_FALSE(IsUtf8("\xF0\x90\x80"));
  EXPECT_FALSE(IsUtf8("\xF8\x88\x80\x80\x80"));
}

TEST(Utf8, OfMegabytesIsWalkedOnce) {
  std::string text;
  while (text.size() < 8'000'000) text += "a\xC3\xA4\xE2\x82\xAC";
  EXPECT_TRUE(IsUtf8(text));
  EXPECT_FALSE(IsUtf8(text + "\xC3"));
  EXPECT_EQ(Utf16Length(text), text.size() / 2);
}

}  // namespace
}  // namespace velmohelp::testing
