#include "util/mac_roman.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <map>

#include "tests/support/random_text.h"
#include "util/utf8.h"

namespace velmohelp::testing {
namespace {

/// The C library's view of one byte. It keeps an older edition of the set, in
/// which two characters have other code points.
std::string FromCLibrary(char byte) {
  static auto* const converter = iconv_open("UTF-8", "MACINTOSH");
  char out[8] = {};
  char* from = &byte;
  char* to = out;
  std::size_t from_left = 1;
  std::size_t to_left = sizeof out;
  EXPECT_EQ(iconv(converter, &from, &from_left, &to, &to_left), 0);
  return out;
}

const std::map<unsigned char, std::string> kNewerThanCLibrary = {
    {0xC6, "\u2206"},  // INCREMENT, not the Greek letter
    {0xF0, "\uF8FF"},  // the maker's mark, in another private place
};

TEST(MacRoman, IsTheCLibrarysSetByteByByte) {
  for (const char byte : AllBytes().substr(1)) {
    const auto newer =
        kNewerThanCLibrary.find(static_cast<unsigned char>(byte));
    const std::string expected =
        newer != kNewerThanCLibrary.end() ? newer->second : FromCLibrary(byte);
    EXPECT_EQ(MacRomanToUtf8({&byte, 1}), expected)
        << static_cast<int>(static_cast<unsigned char>(byte));
  }
}

TEST(MacRoman, GivesUtf8AndComesBackByteByByte) {
  for (const char byte : AllBytes()) {
    const std::string text = MacRomanToUtf8({&byte, 1});
    EXPECT_TRUE(IsUtf8(text));
    EXPECT_EQ(Utf8ToMacRoman(text), std::string(1, byte));
  }
  EXPECT_EQ(Utf8ToMacRoman(MacRomanToUtf8(AllBytes())), AllBytes());
}

TEST(MacRoman, HasNoOtherCharacter) {
  EXPECT_EQ(Utf8ToMacRoman(""), "");
  for (const char* text : {"\u0080", "\u0100", "\u0394", "\u2126", "\u20AD",
                           "\u00A4", "a\U0001F600b", "\uFEFF"}) {
    EXPECT_EQ(Utf8ToMacRoman(text), std::nullopt) << text;
  }
}

TEST(MacRoman, ConvertsMegabytes) {
  const std::string bytes(4'000'000, '\xFF');
  EXPECT_EQ(Utf8ToMacRoman(MacRomanToUtf8(bytes)), bytes);
}

}  // namespace
}  // namespace velmohelp::testing
