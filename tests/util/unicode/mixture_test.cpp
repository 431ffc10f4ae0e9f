// Long texts, where many characters are converted at once, compared with the
// oracle.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "tests/support/sentence.h"
#include "tests/support/unicode_compare.h"
#include "tests/support/unicode_text.h"

namespace velmohelp::testing {
namespace {

/// A copy that ends where its allocation ends, so that the sanitizer sees a
/// read past it, and that starts at an unaligned address.
template <typename Unit>
class ExactCopy {
 public:
  ExactCopy(const std::vector<Unit>& units, std::size_t offset)
      : offset_(offset), copy_(new Unit[offset + units.size()]) {
    std::copy(units.begin(), units.end(), copy_.get() + offset_);
  }
  const Unit* data() const { return copy_.get() + offset_; }

 private:
  std::size_t offset_;
  std::unique_ptr<Unit[]> copy_;
};

/// With ample room, with exactly enough, and with some other amount.
template <typename D>
::testing::AssertionResult AgreeInSomeRooms(
    const D& direction, const std::vector<typename D::Source>& source,
    std::mt19937& random) {
  const std::size_t most = 4 * source.size() + 3;
  TwoTargets<typename D::Target> targets(most);
  const ExactCopy<typename D::Source> exact(source, random() % 17);
  for (const int flag : {0, 1, -7}) {
    const std::size_t needed =
        direction
            .oracle(source.data(), source.size(), targets.oracle(), most, flag)
            .produced;
    targets.Refill(most);
    for (const std::size_t room : {most, needed, random() % (needed + 3)}) {
      auto agree =
          AgreeIn(direction, exact.data(), source.size(), room, flag, targets);
      if (!agree) return agree;
    }
  }
  return ::testing::AssertionSuccess();
}

struct Mixture {
  const char* sentence;
  Purity purity;
};

class Mixtures : public ::testing::TestWithParam<Mixture> {
 protected:
  static constexpr int kRounds = 3000;
  static constexpr std::size_t kLongest = 300;

  std::size_t Length() { return random_() % kLongest; }

  std::mt19937 random_{20};  // NOLINT: the same texts every time
};

TEST_P(Mixtures, OfUtf8Agree) {
  for (int round = 0; round < kRounds; ++round) {
    const auto text = MixedUtf8(random_, Length(), GetParam().purity);
    ASSERT_TRUE(AgreeInSomeRooms(kUtf8To16, text, random_));
    ASSERT_TRUE(AgreeInSomeRooms(kUtf8To32, text, random_));
    ASSERT_TRUE(AgreeOnLegality(text.data(), text.size()));
  }
}

TEST_P(Mixtures, OfUtf16Agree) {
  for (int round = 0; round < kRounds; ++round) {
    const auto text = MixedUtf16(random_, Length(), GetParam().purity);
    ASSERT_TRUE(AgreeInSomeRooms(kUtf16To8, text, random_));
    ASSERT_TRUE(AgreeInSomeRooms(kUtf16To32, text, random_));
  }
}

TEST_P(Mixtures, OfUtf32Agree) {
  for (int round = 0; round < kRounds; ++round) {
    const auto text = MixedValues(random_, Length(), GetParam().purity);
    ASSERT_TRUE(AgreeInSomeRooms(kUtf32To8, text, random_));
    ASSERT_TRUE(AgreeInSomeRooms(kUtf32To16, text, random_));
  }
}

TEST_P(Mixtures, AgreeInEveryRoom) {
  for (int round = 0; round < 60; ++round) {
    const std::size_t length = random_() % 90;
    const auto utf8 = MixedUtf8(random_, length, GetParam().purity);
    const auto utf16 = MixedUtf16(random_, length, GetParam().purity);
    const auto values = MixedValues(random_, length, GetParam().purity);
    TwoTargets<ITEMUTF8> to8(1500);
    TwoTargets<ITEMUTF16> to16(1500);
    TwoTargets<ITEMUTF32> to32(1500);
    ASSERT_TRUE(AgreeInEveryRoom(kUtf8To16, utf8.data(), utf8.size(), to16));
    ASSERT_TRUE(AgreeInEveryRoom(kUtf8To32, utf8.data(), utf8.size(), to32));
    ASSERT_TRUE(AgreeInEveryRoom(kUtf16To8, utf16.data(), utf16.size(), to8));
    ASSERT_TRUE(AgreeInEveryRoom(kUtf16To32, utf16.data(), utf16.size(), to32));
    ASSERT_TRUE(AgreeInEveryRoom(kUtf32To8, values.data(), values.size(), to8));
    ASSERT_TRUE(
        AgreeInEveryRoom(kUtf32To16, values.data(), values.size(), to16));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Of, Mixtures,
    ::testing::Values(Mixture{"well formed text", Purity::kWellFormed},
                      Mixture{"text with surrogates", Purity::kSurrogates},
                      Mixture{"damaged text", Purity::kAnything}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
