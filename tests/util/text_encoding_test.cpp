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

TEST_P(CString, IsMadeOfAPlatformString) {
  const PlatformString text(GetParam().text);
  const std::unique_ptr<char, decltype(&std::free)> bytes(
      GetCharFromCFStringRef(&text), &std::free);
  ASSERT_EQ(bytes != nullptr, GetParam().is_made);
  if (bytes) {
    EXPECT_STREQ(bytes.get(), GetParam().text.c_str());
  }
}

const CStringRow kMade[] = {
    {"one letter", "a", true},
    {"a letter of two bytes", "\xC3\xA4", true},
    {"a character of four bytes", "\xF0\x9F\x98\x80", true},
    {"a letter among characters of three bytes", "\u20ACx\u20AC", true},
    {"a text of megabytes", std::string(8'000'000, 'a'), true},
};

const CStringRow kNotMade[] = {
    {"an empty text", "", false},
    {"a character of three bytes", "\u20AC", false},
    {"many characters of three bytes", "\u20AC\u20AC\uFFFD", false},
};

INSTANTIATE_TEST_SUITE_P(Made, CString, ::testing::ValuesIn(kMade),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(NotMade, CString, ::testing::ValuesIn(kNotMade),
                         SentenceOf());

TEST(CStringOfNull, IsNotMade) {
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
    {"UTF-8 has all characters", "a\u00E4\u20AC\U0001F600", kUtf8,
     "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"},
    {"ASCII has its own", "a\x7F", kAscii, "a\x7F"},
    {"ASCII has no others", "a\u00E4", kAscii, ""},
    {"Mac Roman has its own", "a\u00E4\u20AC", kMacRoman, "a\x8A\xDB"},
    {"Mac Roman has no others", "a\u0100", kMacRoman, ""},
    {"an unknown encoding has none", "a", 1, ""},
    {"an empty text is empty", "", kUtf8, ""},
};

const EncodedRow kLimits[] = {
    {"1023 bytes fit", std::string(1023, 'a'), kUtf8, std::string(1023, 'a')},
    {"1024 bytes do not", std::string(1024, 'a'), kUtf8, ""},
    {"1024 bytes of ASCII do not", std::string(1024, 'a'), kAscii, ""},
    {"bytes count and not characters", std::string(1022, 'a') + "\u00E4", kUtf8,
     ""},
    {"bytes count in the target's encoding", std::string(1022, 'a') + "\u00E4",
     kMacRoman, std::string(1022, 'a') + "\x8A"},
    {"megabytes do not", std::string(8'000'000, 'a'), kUtf8, ""},
    {"a text ends at its first zero byte", "a\0b"s, kUtf8, "a"},
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

TEST(TextOfACString, IsThereForUtf8Alone) {
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
