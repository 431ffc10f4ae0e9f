#include "util/text_encoding.h"

#include <gtest/gtest.h>
#include <velmohelp/platform.h>

#include <cstdlib>
#include <memory>

#include "tests/support/random_text.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ITEMInternal::CstrToNSstr;
using ITEMInternal::GetCharFromCFStringRef;
using ITEMInternal::GetString;
using ITEMInternal::PlatformString;

struct CStringRow {
  const char* sentence;
  std::string text;
  bool is_made;
};

class CString : public ::testing::TestWithParam<CStringRow> {};

TEST_P(CString, IsAllocatedForAPlatformString) {
  const PlatformString text(GetParam().text);
  const std::unique_ptr<char, decltype(&std::free)> bytes(
      GetCharFromCFStringRef(&text), &std::free);
  ASSERT_EQ(bytes != nullptr, GetParam().is_made);
  if (bytes) {
    EXPECT_STREQ(bytes.get(), GetParam().text.c_str());
  }
}

const CStringRow kMade[] = {
    {.sentence = "one letter", .text = "a", .is_made = true},
    {.sentence = "a letter of two bytes", .text = "\xC3\xA4", .is_made = true},
    {.sentence = "a character of four bytes",
     .text = "\xF0\x9F\x98\x80",
     .is_made = true},
    {.sentence = "a letter among characters of three bytes",
     .text = "\u20ACx\u20AC",
     .is_made = true},
    {.sentence = "a text of megabytes",
     .text = std::string(8'000'000, 'a'),
     .is_made = true},
};

const CStringRow kNotMade[] = {
    {.sentence = "an empty text", .text = "", .is_made = false},
    {.sentence = "a character of three bytes",
     .text = "\u20AC",
     .is_made = false},
    {.sentence = "many characters of three bytes",
     .text = "\u20AC\u20AC\uFFFD",
     .is_made = false},
};

INSTANTIATE_TEST_SUITE_P(Made, CString, ::testing::ValuesIn(kMade),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(NotMade, CString, ::testing::ValuesIn(kNotMade),
                         SentenceOf());

TEST(CStringOfNull, IsNotAllocated) {
  EXPECT_EQ(GetCharFromCFStringRef(nullptr), nullptr);
}

struct EncodedRow {
  const char* sentence;
  std::string text;
  std::uint32_t encoding;
  std::string bytes;
};

class EncodedText : public ::testing::TestWithParam<EncodedRow> {};

TEST_P(EncodedText, HasItsBytes) {
  const PlatformString text(GetParam().text);
  EXPECT_EQ(GetString(&text, GetParam().encoding), GetParam().bytes);
}

constexpr std::uint32_t kUtf8 = 0x08000100;
constexpr std::uint32_t kAscii = 0x0600;
constexpr std::uint32_t kMacRoman = 0;

const EncodedRow kEncodings[] = {
    {.sentence = "UTF-8 has all characters",
     .text = "a\u00E4\u20AC\U0001F600",
     .encoding = kUtf8,
     .bytes = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"},
    {.sentence = "ASCII has its own characters",
     .text = "a\x7F",
     .encoding = kAscii,
     .bytes = "a\x7F"},
    {.sentence = "ASCII has no other characters",
     .text = "a\u00E4",
     .encoding = kAscii,
     .bytes = ""},
    {.sentence = "Mac Roman has its own characters",
     .text = "a\u00E4\u20AC",
     .encoding = kMacRoman,
     .bytes = "a\x8A\xDB"},
    {.sentence = "Mac Roman has no other characters",
     .text = "a\u0100",
     .encoding = kMacRoman,
     .bytes = ""},
    {.sentence = "an unknown encoding has no characters",
     .text = "a",
     .encoding = 1,
     .bytes = ""},
    {.sentence = "an empty text is empty",
     .text = "",
     .encoding = kUtf8,
     .bytes = ""},
};

const EncodedRow kLimits[] = {
    {.sentence = "1023 bytes fit",
     .text = std::string(1023, 'a'),
     .encoding = kUtf8,
     .bytes = std::string(1023, 'a')},
    {.sentence = "1024 bytes do not",
     .text = std::string(1024, 'a'),
     .encoding = kUtf8,
     .bytes = ""},
    {.sentence = "1024 bytes of ASCII do not",
     .text = std::string(1024, 'a'),
     .encoding = kAscii,
     .bytes = ""},
    {.sentence = "bytes count and not characters",
     .text = std::string(1022, 'a') + "\u00E4",
     .encoding = kUtf8,
     .bytes = ""},
    {.sentence = "bytes count in the target's encoding",
     .text = std::string(1022, 'a') + "\u00E4",
     .encoding = kMacRoman,
     .bytes = std::string(1022, 'a') + "\x8A"},
    {.sentence = "megabytes do not",
     .text = std::string(8'000'000, 'a'),
     .encoding = kUtf8,
     .bytes = ""},
    {.sentence = "a text ends at its first zero byte",
     .text = "a\0b"s,
     .encoding = kUtf8,
     .bytes = "a"},
};

INSTANTIATE_TEST_SUITE_P(Encodings, EncodedText,
                         ::testing::ValuesIn(kEncodings), SentenceOf());
INSTANTIATE_TEST_SUITE_P(Limits, EncodedText, ::testing::ValuesIn(kLimits),
                         SentenceOf());

TEST(EncodedTextOfNull, IsEmpty) {
  for (const auto encoding : {kUtf8, kAscii, kMacRoman}) {
    EXPECT_EQ(GetString(nullptr, encoding), "");
  }
}

TEST(TextOfACString, ExistsOnlyForUtf8) {
  EXPECT_EQ(CstrToNSstr(nullptr), nullptr);
  EXPECT_EQ(CstrToNSstr("\xFF"), nullptr);
  EXPECT_EQ(CstrToNSstr("a\xC3"), nullptr);
  EXPECT_EQ(CstrToNSstr("")->utf8(), "");
  EXPECT_EQ(CstrToNSstr("a\xC3\xA4")->utf8(), "a\xC3\xA4");
}

struct DecodedRow {
  const char* sentence;
  std::string bytes;
  std::uint32_t encoding;
  std::optional<std::string> text;
};

class DecodedBytes : public ::testing::TestWithParam<DecodedRow> {};

TEST_P(DecodedBytes, AreTheText) {
  EXPECT_EQ(DecodeText(GetParam().bytes, TextEncoding{GetParam().encoding}),
            GetParam().text);
}

const DecodedRow kDecodings[] = {

    {.sentence = "UTF-8 ends at the first zero byte",
     .bytes = "a\0\xFF"s,
     .encoding = kUtf8,
     .text = "a"},

    {.sentence = "Mac Roman ends at the first zero byte",
     .bytes = "a\0b"s,
     .encoding = kMacRoman,
     .text = "a"},

    {.sentence = "ASCII ends at the first zero byte",
     .bytes = "\0b"s,
     .encoding = kAscii,
     .text = ""},

    {.sentence = "Mac Roman has a character for every byte",
     .bytes = "\x8A",
     .encoding = kMacRoman,
     .text = "\u00E4"},

    {.sentence = "a continuation byte alone is not valid UTF-8",
     .bytes = "\x8A",
     .encoding = kUtf8,
     .text = std::nullopt},

    {.sentence = "a byte above 127 is not valid ASCII",
     .bytes = "\x80",
     .encoding = kAscii,
     .text = std::nullopt},

    {.sentence = "byte 127 is valid ASCII",
     .bytes = "\x7F",
     .encoding = kAscii,
     .text = "\x7F"},

    {.sentence = "nothing is valid in an unknown encoding",
     .bytes = "a",
     .encoding = 1,
     .text = std::nullopt},
};

INSTANTIATE_TEST_SUITE_P(Decodings, DecodedBytes,
                         ::testing::ValuesIn(kDecodings), SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
