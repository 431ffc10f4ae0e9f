// Well-formed text compared with ICU, which does not have our special cases.
#include <gtest/gtest.h>
#include <unicode/ustring.h>
#include <unicode/utf8.h>

#include "tests/support/unicode_compare.h"
#include "tests/support/unicode_text.h"

namespace velmohelp::testing {
namespace {

class AgainstIcu : public ::testing::Test {
 protected:
  static constexpr int kRounds = 2000;

  std::vector<ITEMUTF8> Text() {
    return MixedUtf8(random_, random_() % 1000, Purity::kWellFormed);
  }

  std::mt19937 random_{72};  // NOLINT: the same texts every time
};

std::vector<ITEMUTF16> IcuUtf16(const std::vector<ITEMUTF8>& text) {
  std::vector<ITEMUTF16> units(text.size() + 1);
  std::int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strFromUTF8(reinterpret_cast<UChar*>(units.data()),
                static_cast<std::int32_t>(units.size()), &length,
                reinterpret_cast<const char*>(text.data()),
                static_cast<std::int32_t>(text.size()), &error);
  EXPECT_TRUE(U_SUCCESS(error));
  units.resize(static_cast<std::size_t>(length));
  return units;
}

std::vector<ITEMUTF32> IcuValues(const std::vector<ITEMUTF8>& text) {
  std::vector<ITEMUTF32> values;
  const ITEMUTF8* bytes = text.data();
  for (std::size_t i = 0; i < text.size();) {
    UChar32 value = 0;
    U8_NEXT(bytes, i, text.size(), value);
    values.push_back(static_cast<ITEMUTF32>(value));
  }
  return values;
}

template <typename D>
std::vector<typename D::Target> Converted(
    const D& direction, const std::vector<typename D::Source>& source,
    std::size_t room) {
  std::vector<typename D::Target> target(room);
  const Outcome outcome = RunReal(direction, source.data(), source.size(),
                                  target.data(), room, kConversionStrict);
  EXPECT_EQ(outcome, (Outcome{0, source.size(), room}));
  return target;
}

TEST_F(AgainstIcu, AllSixDirectionsAgree) {
  for (int round = 0; round < kRounds; ++round) {
    const auto utf8 = Text();
    const auto utf16 = IcuUtf16(utf8);
    const auto values = IcuValues(utf8);
    ASSERT_EQ(Converted(kUtf8To16, utf8, utf16.size()), utf16);
    ASSERT_EQ(Converted(kUtf8To32, utf8, values.size()), values);
    ASSERT_EQ(Converted(kUtf16To8, utf16, utf8.size()), utf8);
    ASSERT_EQ(Converted(kUtf16To32, utf16, values.size()), values);
    ASSERT_EQ(Converted(kUtf32To8, values, utf8.size()), utf8);
    ASSERT_EQ(Converted(kUtf32To16, values, utf16.size()), utf16);
    ASSERT_TRUE(ITEMisLegalUTF8String(utf8.data(), utf8.data() + utf8.size()));
  }
}

}  // namespace
}  // namespace velmohelp::testing
