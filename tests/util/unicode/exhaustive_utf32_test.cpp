// All values of interest, compared with the oracle.
#include <gtest/gtest.h>

#include <array>
#include <numeric>

#include "tests/support/unicode_compare.h"

namespace velmohelp::testing {
namespace {

/// Both sides of every boundary, and values that would look harmless when cut
/// to 8, 16, 21 or 32 bits.
constexpr std::array<ITEMUTF32, 26> kSpecial = {0x7F,
                                                0x80,
                                                0x7FF,
                                                0x800,
                                                0xD7FF,
                                                0xD800,
                                                0xDFFF,
                                                0xE000,
                                                0x10FFFF,
                                                0x110000,
                                                0x220000,
                                                0x7FFFFFFF,
                                                0x80000000,
                                                0xFFFFFFFF,
                                                0x100000000,
                                                0x100000041,
                                                0x10000D800,
                                                0x100010000,
                                                0x200000,
                                                0x41000000000041,
                                                0x8000000000000000,
                                                0x8000000000000041,
                                                0x800000000000D800,
                                                0x7FFFFFFFFFFFFFFF,
                                                0xFFFFFFFF00000041,
                                                0xFFFFFFFFFFFFFFFF};

class Utf32Values : public ::testing::Test {
 protected:
  ::testing::AssertionResult Agree(const ITEMUTF32* values, std::size_t size) {
    auto agree = AgreeInEveryRoom(kUtf32To8, values, size, utf8_);
    return agree ? AgreeInEveryRoom(kUtf32To16, values, size, utf16_) : agree;
  }

  TwoTargets<ITEMUTF8> utf8_{160};
  TwoTargets<ITEMUTF16> utf16_{160};
};

TEST_F(Utf32Values, UpTo0x220000Agree) {
  for (ITEMUTF32 value = 0; value <= 0x220000; ++value) {
    ASSERT_TRUE(Agree(&value, 1));
  }
}

TEST_F(Utf32Values, UpTo0x220000AgreeInRuns) {
  std::array<ITEMUTF32, 32> run{};
  for (ITEMUTF32 first = 0; first < 0x220000; first += run.size()) {
    std::iota(run.begin(), run.end(), first);
    for (const int flag : {0, 1}) {
      ASSERT_TRUE(AgreeIn(kUtf32To8, run.data(), run.size(), 160, flag, utf8_));
      ASSERT_TRUE(
          AgreeIn(kUtf32To16, run.data(), run.size(), 160, flag, utf16_));
    }
  }
}

TEST_F(Utf32Values, ThatAreSpecialAgreeAtEveryPlaceOfARun) {
  for (const ITEMUTF32 value : kSpecial) {
    ASSERT_TRUE(Agree(&value, 1));
    for (std::size_t place = 0; place < 24; ++place) {
      std::array<ITEMUTF32, 24> run{};
      run.fill(0x42);
      run[place] = value;
      ASSERT_TRUE(Agree(run.data(), run.size())) << std::hex << value;
    }
  }
}

}  // namespace
}  // namespace velmohelp::testing
