// One row of a table of the converters' rules, and its check.
#ifndef TESTS_UTIL_UNICODE_RULE_H_
#define TESTS_UTIL_UNICODE_RULE_H_

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/unicode_compare.h"

namespace velmohelp::testing {

inline constexpr int kStrict = kConversionStrict;
inline constexpr int kLenient = kConversionLenient;

inline constexpr int kComplete = kConversionComplete;
inline constexpr int kSourceExhausted = kConversionSourceExhausted;
inline constexpr int kTargetExhausted = kConversionTargetExhausted;
inline constexpr int kIllegal = kConversionSourceIllegal;

template <typename From, typename To>
struct Rule {
  const char* sentence;
  std::vector<From> source;
  std::vector<int> flags = {kStrict, kLenient};
  std::size_t room = 8;
  int result = kComplete;
  std::size_t consumed = 0;
  std::vector<To> produced = {};
};

template <typename D, typename R>
void Expect(const D& direction, const R& rule) {
  for (const int flag : rule.flags) {
    std::vector<typename D::Target> target(rule.room);
    const Outcome outcome =
        RunReal(direction, rule.source.data(), rule.source.size(),
                target.data(), target.size(), flag);
    target.resize(outcome.produced);
    EXPECT_EQ(outcome.result, rule.result) << "flag " << flag;
    EXPECT_EQ(outcome.consumed, rule.consumed) << "flag " << flag;
    EXPECT_EQ(target, rule.produced) << "flag " << flag;
  }
}

}  // namespace velmohelp::testing

#endif  // TESTS_UTIL_UNICODE_RULE_H_
