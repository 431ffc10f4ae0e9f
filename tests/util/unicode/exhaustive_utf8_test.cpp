// All short sequences of bytes, compared with the oracle.
#include <gtest/gtest.h>

#include <array>

#include "tests/support/sentence.h"
#include "tests/support/unicode_compare.h"

namespace velmohelp::testing {
namespace {

/// Both sides of every boundary at which the meaning of a byte changes.
constexpr std::array<ITEMUTF8, 18> kBoundaries = {
    0x00, 0x7F, 0x80, 0x81, 0x8F, 0x90, 0x9F, 0xA0, 0xBF,
    0xC0, 0xC2, 0xDF, 0xE0, 0xED, 0xF0, 0xF4, 0xF8, 0xFF};

struct Leads {
  const char* sentence;
  unsigned first;
  unsigned last;
};

class Utf8Sequences : public ::testing::TestWithParam<Leads> {
 protected:
  ::testing::AssertionResult Agree(const ITEMUTF8* bytes, std::size_t size) {
    auto agree = AgreeInEveryRoom(kUtf8To16, bytes, size, utf16_);
    if (agree) agree = AgreeInEveryRoom(kUtf8To32, bytes, size, utf32_);
    return agree ? AgreeOnLegality(bytes, size) : agree;
  }

  TwoTargets<ITEMUTF16> utf16_{28};
  TwoTargets<ITEMUTF32> utf32_{28};
};

TEST_P(Utf8Sequences, OfUpToThreeBytesAgree) {
  for (unsigned lead = GetParam().first; lead <= GetParam().last; ++lead) {
    ITEMUTF8 bytes[3] = {static_cast<ITEMUTF8>(lead)};
    ASSERT_TRUE(Agree(bytes, 0));
    ASSERT_TRUE(Agree(bytes, 1));
    for (unsigned rest = 0; rest < 0x10000; ++rest) {
      bytes[1] = static_cast<ITEMUTF8>(rest >> 8);
      bytes[2] = static_cast<ITEMUTF8>(rest);
      if (bytes[2] == 0) {
        ASSERT_TRUE(Agree(bytes, 2));
      }
      ASSERT_TRUE(Agree(bytes, 3));
    }
  }
}

TEST_P(Utf8Sequences, OfFourBytesAtTheBoundariesAgree) {
  for (unsigned lead = GetParam().first; lead <= GetParam().last; ++lead) {
    for (const ITEMUTF8 second : kBoundaries) {
      for (const ITEMUTF8 third : kBoundaries) {
        for (const ITEMUTF8 fourth : kBoundaries) {
          const ITEMUTF8 bytes[] = {static_cast<ITEMUTF8>(lead), second, third,
                                    fourth};
          ASSERT_TRUE(Agree(bytes, 4));
        }
      }
    }
  }
}

TEST_P(Utf8Sequences, OfFiveAndSixByteFormsAgree) {
  for (unsigned lead = GetParam().first; lead <= GetParam().last; ++lead) {
    ITEMUTF8 bytes[] = {
        static_cast<ITEMUTF8>(lead), 0x88, 0x80, 0x80, 0x80, 0x80};
    for (std::size_t size = 4; size <= 6; ++size) {
      ASSERT_TRUE(Agree(bytes, size));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(LedBy, Utf8Sequences,
                         ::testing::Values(Leads{"ASCII low", 0x00, 0x3F},
                                           Leads{"ASCII high", 0x40, 0x7F},
                                           Leads{"trailing", 0x80, 0xBF},
                                           Leads{"two bytes", 0xC0, 0xDF},
                                           Leads{"more bytes", 0xE0, 0xFF}),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
