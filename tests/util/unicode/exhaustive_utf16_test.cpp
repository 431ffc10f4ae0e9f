// All units and the pairs that matter, compared with the oracle.
#include <gtest/gtest.h>

#include <array>

#include "tests/support/unicode_compare.h"

namespace velmohelp::testing {
namespace {

/// Both sides of every boundary at which the meaning of a unit changes.
constexpr std::array<ITEMUTF16, 14> kBoundaries = {
    0x0000, 0x007F, 0x0080, 0x07FF, 0x0800, 0xD7FF, 0xD800,
    0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFD, 0xFFFE, 0xFFFF};

class Utf16Units : public ::testing::Test {
 protected:
  ::testing::AssertionResult Agree(const ITEMUTF16* units, std::size_t size) {
    auto agree = AgreeInEveryRoom(kUtf16To8, units, size, utf8_);
    return agree ? AgreeInEveryRoom(kUtf16To32, units, size, utf32_) : agree;
  }

  TwoTargets<ITEMUTF8> utf8_{12};
  TwoTargets<ITEMUTF32> utf32_{12};
};

TEST_F(Utf16Units, AloneAgree) {
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    const auto value = static_cast<ITEMUTF16>(unit);
    ASSERT_TRUE(Agree(&value, 1));
  }
}

TEST_F(Utf16Units, BesideEveryBoundaryUnitAgree) {
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    for (const ITEMUTF16 boundary : kBoundaries) {
      const ITEMUTF16 units[] = {static_cast<ITEMUTF16>(unit), boundary,
                                 static_cast<ITEMUTF16>(unit)};
      ASSERT_TRUE(Agree(units, 2));
      ASSERT_TRUE(Agree(units + 1, 2));
    }
  }
}

// Every high surrogate before every surrogate, so every code point that needs
// two units. With one size of target: the boundaries above had them all.
TEST_F(Utf16Units, HighSurrogatesBeforeEverySurrogateAgree) {
  for (unsigned high = 0xD800; high <= 0xDBFF; ++high) {
    for (unsigned second = 0xD800; second <= 0xDFFF; ++second) {
      const ITEMUTF16 units[] = {static_cast<ITEMUTF16>(high),
                                 static_cast<ITEMUTF16>(second)};
      for (const int flag : {0, 1}) {
        ASSERT_TRUE(AgreeIn(kUtf16To8, units, 2, 6, flag, utf8_));
        ASSERT_TRUE(AgreeIn(kUtf16To32, units, 2, 2, flag, utf32_));
      }
    }
  }
}

}  // namespace
}  // namespace velmohelp::testing
