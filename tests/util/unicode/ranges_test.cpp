// Ranges without units: null, empty, and with the end before the start.
#include <gtest/gtest.h>

#include "tests/support/unicode_compare.h"
#include "util/unicode/legality.h"

namespace velmohelp::testing {
namespace {

constexpr ITEMUTF8 kText[] = {'a', 'b', 'c'};

/// Converts one range of bytes into one of units.
struct Call {
  Call(const ITEMUTF8* source, const ITEMUTF8* source_end, ITEMUTF16* target,
       ITEMUTF16* target_end)
      : from(source), to(target) {
    result = ITEMConvertUTF8toUTF16(&from, source_end, &to, target_end, 0);
  }

  const ITEMUTF8* from;
  ITEMUTF16* to;
  ITEMConversionResult result;
};

TEST(SourceRange, ThatIsNullIsComplete) {
  ITEMUTF16 target[2] = {};
  const Call call(nullptr, nullptr, target, target + 2);
  EXPECT_EQ(call.result, kConversionComplete);
  EXPECT_EQ(call.from, nullptr);
  EXPECT_EQ(call.to, target);
}

TEST(SourceRange, WithoutAStartIsComplete) {
  ITEMUTF16 target[2] = {};
  const Call call(nullptr, kText + 3, target, target + 2);
  EXPECT_EQ(call.result, kConversionComplete);
  EXPECT_EQ(call.from, nullptr);
}

TEST(SourceRange, ThatIsInvertedIsComplete) {
  ITEMUTF16 target[4] = {};
  for (const ITEMUTF8* end : {kText, static_cast<const ITEMUTF8*>(nullptr)}) {
    const Call call(kText + 3, end, target, target + 4);
    EXPECT_EQ(call.result, kConversionComplete);
    EXPECT_EQ(call.from, kText + 3);
    EXPECT_EQ(call.to, target);
  }
}

TEST(TargetRange, ThatIsNullHasNoRoom) {
  ITEMUTF16 end = 0;
  for (ITEMUTF16* last : {static_cast<ITEMUTF16*>(nullptr), &end}) {
    const Call call(kText, kText + 3, nullptr, last);
    EXPECT_EQ(call.result, kConversionTargetExhausted);
    EXPECT_EQ(call.from, kText);
    EXPECT_EQ(call.to, nullptr);
  }
}

TEST(TargetRange, ThatIsInvertedHasNoRoom) {
  ITEMUTF16 target[4] = {7, 7, 7, 7};
  const Call call(kText, kText + 3, target + 4, target);
  EXPECT_EQ(call.result, kConversionTargetExhausted);
  EXPECT_EQ(call.to, target + 4);
  EXPECT_EQ(target[3], 7);
}

TEST(Legality, OfAnEmptyRangeIsTrueForAStringAndFalseForASequence) {
  EXPECT_TRUE(ITEMisLegalUTF8String(kText, kText));
  EXPECT_TRUE(ITEMisLegalUTF8String(nullptr, nullptr));
  EXPECT_FALSE(ITEMisLegalUTF8Sequence(kText, kText));
  EXPECT_FALSE(ITEMisLegalUTF8Sequence(nullptr, nullptr));
}

TEST(Legality, IsFalseForAnInvertedOrHalfNullRange) {
  EXPECT_FALSE(ITEMisLegalUTF8String(kText + 1, kText));
  EXPECT_FALSE(ITEMisLegalUTF8String(nullptr, kText));
  EXPECT_FALSE(ITEMisLegalUTF8String(kText, nullptr));
  EXPECT_FALSE(ITEMisLegalUTF8Sequence(kText + 1, kText));
  EXPECT_FALSE(ITEMisLegalUTF8Sequence(nullptr, kText));
}

TEST(Legality, OfASequenceIgnoresWhatFollows) {
  constexpr ITEMUTF8 text[] = {0xC3, 0xA9, 0xFF};
  EXPECT_TRUE(ITEMisLegalUTF8Sequence(text, text + 3));
  EXPECT_FALSE(ITEMisLegalUTF8String(text, text + 3));
  EXPECT_FALSE(ITEMisLegalUTF8Sequence(text, text + 1));
}

TEST(Legality, InsideTheLibraryIsTheSame) {
  EXPECT_TRUE(unicode::IsLegalUtf8(""));
  EXPECT_TRUE(unicode::IsLegalUtf8("caf\xC3\xA9 \xED\xA0\x80"));
  EXPECT_FALSE(unicode::IsLegalUtf8("\xF5\x80\x80\x80"));
}

}  // namespace
}  // namespace velmohelp::testing
