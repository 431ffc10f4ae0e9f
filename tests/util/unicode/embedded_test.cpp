// Short sequences at every place of a longer text: what cuts a block, or is
// illegal inside one, must end like a single step.
#include <gtest/gtest.h>

#include <array>
#include <string_view>

#include "tests/support/sentence.h"
#include "tests/support/unicode_compare.h"

namespace velmohelp::testing {
namespace {

using std::string_view_literals::operator""sv;

constexpr std::array<ITEMUTF8, 14> kBoundaries = {0x41, 0x80, 0x8F, 0x90, 0x9F,
                                                  0xA0, 0xBF, 0xC1, 0xC2, 0xE0,
                                                  0xED, 0xF0, 0xF4, 0xF5};

struct Around {
  const char* sentence;
  std::string_view text;  // whole characters, repeated
};

class Embedded : public ::testing::TestWithParam<Around> {
 protected:
  static constexpr std::size_t kBefore = 35;  // more than two blocks
  static constexpr std::size_t kSize = 80;

  /// The text around, with the bytes at a place in it.
  static std::array<ITEMUTF8, kSize> TextWith(
      const std::array<ITEMUTF8, 4>& bytes, std::size_t place) {
    std::array<ITEMUTF8, kSize> text{};
    const std::string_view around = GetParam().text;
    for (std::size_t i = 0; i < kSize; ++i) {
      text[i] = static_cast<ITEMUTF8>(around[i % around.size()]);
    }
    std::copy(bytes.begin(), bytes.end(), text.begin() + place);
    return text;
  }

  void ExpectAgreement(const std::array<ITEMUTF8, 4>& bytes,
                       std::size_t place) {
    const auto text = TextWith(bytes, place);
    for (const int flag : {0, 1}) {
      ASSERT_TRUE(AgreeIn(kUtf8To16, text.data(), kSize, kSize, flag, utf16_));
    }
    ASSERT_TRUE(AgreeIn(kUtf8To32, text.data(), kSize, kSize, 0, utf32_));
    ASSERT_TRUE(AgreeOnLegality(text.data(), kSize));
  }

  TwoTargets<ITEMUTF16> utf16_{kSize};
  TwoTargets<ITEMUTF32> utf32_{kSize};
};

// The place changes with every sequence: each of the 35 places gets about a
// thousand of the 14^4 sequences.
TEST_P(Embedded, SequencesAgreeAtEveryPlace) {
  std::size_t place = 0;
  for (const ITEMUTF8 first : kBoundaries) {
    for (const ITEMUTF8 second : kBoundaries) {
      for (const ITEMUTF8 third : kBoundaries) {
        for (const ITEMUTF8 fourth : kBoundaries) {
          place = (place + 1) % kBefore;
          ExpectAgreement({first, second, third, fourth}, place);
          if (HasFatalFailure()) return;
        }
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    In, Embedded,
    ::testing::Values(Around{"ASCII", "a"sv}, Around{"Cyrillic", "\xD0\x96"sv},
                      Around{"CJK", "\xE4\xB8\xAD"sv},
                      Around{"emoji", "\xF0\x9F\x98\x80"sv},
                      Around{"a mixture",
                             "x\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80zz"sv}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
