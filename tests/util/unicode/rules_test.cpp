// The rules that callers stumble over, one row each.
#include <gtest/gtest.h>

#include <vector>

#include "tests/support/sentence.h"
#include "tests/support/unicode_compare.h"

namespace velmohelp::testing {
namespace {

constexpr int kStrict = kConversionStrict;
constexpr int kLenient = kConversionLenient;
constexpr std::size_t kRoom = 8;

template <typename From, typename To>
struct Rule {
  const char* sentence;
  std::vector<From> source;
  std::vector<int> flags;
  int result;
  std::size_t consumed;
  std::vector<To> produced;
  std::size_t room = kRoom;
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

using Utf8To16Rule = Rule<ITEMUTF8, ITEMUTF16>;
class Utf8To16 : public ::testing::TestWithParam<Utf8To16Rule> {};
TEST_P(Utf8To16, Holds) { Expect(kUtf8To16, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf8To16,
    ::testing::Values(
        Utf8To16Rule{
            "text is converted to its end",
            {0x41, 0xC3, 0xA9, 0xE2, 0x82, 0xAC, 0xF0, 0x9F, 0x98, 0x80},
            {kStrict, kLenient, -1, 256},
            0,
            10,
            {0x41, 0xE9, 0x20AC, 0xD83D, 0xDE00}},
        Utf8To16Rule{"an empty source is complete even without room",
                     {},
                     {kStrict, kLenient},
                     0,
                     0,
                     {},
                     0},
        Utf8To16Rule{"an incomplete sequence exhausts the source",
                     {0xE2, 0x82},
                     {kStrict, kLenient},
                     1,
                     0,
                     {}},
        Utf8To16Rule{"what stands before an incomplete sequence is converted",
                     {0x41, 0x42, 0xE2},
                     {kStrict, kLenient},
                     1,
                     2,
                     {0x41, 0x42}},
        Utf8To16Rule{"an incomplete sequence is not judged",
                     {0xE2, 0x28},
                     {kStrict, kLenient},
                     1,
                     0,
                     {}},
        Utf8To16Rule{"an incomplete six byte form exhausts the source",
                     {0xFF, 0x41, 0x41, 0x41, 0x41},
                     {kStrict, kLenient},
                     1,
                     0,
                     {}},
        Utf8To16Rule{"a complete six byte form is illegal",
                     {0xFC, 0x84, 0x80, 0x80, 0x80, 0x80},
                     {kStrict, kLenient},
                     3,
                     0,
                     {}},
        Utf8To16Rule{"a surrogate form stops strict mode",
                     {0x41, 0xED, 0xA0, 0x80},
                     {kStrict},
                     3,
                     1,
                     {0x41}},
        Utf8To16Rule{"a surrogate form passes lenient mode",
                     {0xED, 0xA0, 0x80, 0xED, 0xBF, 0xBF},
                     {kLenient, -1},
                     0,
                     6,
                     {0xD800, 0xDFFF}},
        Utf8To16Rule{"an overlong form is illegal in lenient mode too",
                     {0xC0, 0x80},
                     {kStrict, kLenient},
                     3,
                     0,
                     {}},
        Utf8To16Rule{"an overlong three byte form is illegal",
                     {0x41, 0xE0, 0x9F, 0xBF},
                     {kStrict, kLenient},
                     3,
                     1,
                     {0x41}},
        Utf8To16Rule{"an overlong four byte form is illegal",
                     {0xF0, 0x8F, 0xBF, 0xBF},
                     {kStrict, kLenient},
                     3,
                     0,
                     {}},
        Utf8To16Rule{"what lies beyond Unicode is illegal",
                     {0xF4, 0x90, 0x80, 0x80},
                     {kStrict, kLenient},
                     3,
                     0,
                     {}},
        Utf8To16Rule{"a stray trailing byte is illegal",
                     {0x80},
                     {kStrict, kLenient},
                     3,
                     0,
                     {}},
        Utf8To16Rule{"a pair is written whole or not at all",
                     {0xF0, 0x9F, 0x98, 0x80},
                     {kStrict, kLenient},
                     2,
                     0,
                     {},
                     1},
        Utf8To16Rule{"an illegal sequence is found without room",
                     {0xC3, 0x28},
                     {kStrict, kLenient},
                     3,
                     0,
                     {},
                     0},
        Utf8To16Rule{"a surrogate form is refused without room",
                     {0xED, 0xA0, 0x80},
                     {kStrict},
                     3,
                     0,
                     {},
                     0},
        Utf8To16Rule{"a full target stops before the character",
                     {0x41, 0xC3, 0xA9},
                     {kStrict, kLenient},
                     2,
                     1,
                     {0x41},
                     1}),
    SentenceOf());

using Utf8To32Rule = Rule<ITEMUTF8, ITEMUTF32>;
class Utf8To32 : public ::testing::TestWithParam<Utf8To32Rule> {};
TEST_P(Utf8To32, Holds) { Expect(kUtf8To32, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf8To32,
    ::testing::Values(Utf8To32Rule{"units have 64 bits",
                                   {0x41, 0xF4, 0x8F, 0xBF, 0xBF},
                                   {kStrict, kLenient},
                                   0,
                                   5,
                                   {0x41, 0x10FFFF}},
                      Utf8To32Rule{"a surrogate form passes strict mode too",
                                   {0xED, 0xA0, 0x80},
                                   {kStrict, kLenient},
                                   0,
                                   3,
                                   {0xD800}},
                      Utf8To32Rule{"an illegal sequence stops lenient mode too",
                                   {0xC3, 0x28},
                                   {kStrict, kLenient},
                                   3,
                                   0,
                                   {}}),
    SentenceOf());

using Utf16To8Rule = Rule<ITEMUTF16, ITEMUTF8>;
class Utf16To8 : public ::testing::TestWithParam<Utf16To8Rule> {};
TEST_P(Utf16To8, Holds) { Expect(kUtf16To8, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf16To8,
    ::testing::Values(
        Utf16To8Rule{"a high surrogate at the end passes strict mode too",
                     {0xD800},
                     {kStrict, kLenient},
                     0,
                     1,
                     {0xED, 0xA0, 0x80}},
        Utf16To8Rule{"a pair becomes four bytes",
                     {0xD83D, 0xDE00},
                     {kStrict, kLenient},
                     0,
                     2,
                     {0xF0, 0x9F, 0x98, 0x80}},
        Utf16To8Rule{"a high surrogate before a letter stops strict mode",
                     {0x41, 0xD83D, 0x42},
                     {kStrict},
                     3,
                     1,
                     {0x41}},
        Utf16To8Rule{"a high surrogate before a letter passes lenient mode",
                     {0xD83D, 0x42},
                     {kLenient},
                     0,
                     2,
                     {0xED, 0xA0, 0xBD, 0x42}},
        Utf16To8Rule{"a pair that does not fit stops at the high surrogate",
                     {0x41, 0xD83D, 0xDE00},
                     {kStrict, kLenient},
                     2,
                     1,
                     {0x41},
                     4}),
    SentenceOf());

using Utf16To32Rule = Rule<ITEMUTF16, ITEMUTF32>;
class Utf16To32 : public ::testing::TestWithParam<Utf16To32Rule> {};
TEST_P(Utf16To32, Holds) { Expect(kUtf16To32, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf16To32,
    ::testing::Values(
        Utf16To32Rule{"a lone low surrogate stops strict mode",
                      {0xDC00},
                      {kStrict},
                      3,
                      0,
                      {}},
        Utf16To32Rule{"a lone low surrogate passes lenient mode",
                      {0xDC00},
                      {kLenient},
                      0,
                      1,
                      {0xDC00}},
        Utf16To32Rule{"two high surrogates are two in lenient mode",
                      {0xD83D, 0xD83D, 0xDE00},
                      {kLenient},
                      0,
                      3,
                      {0xD83D, 0x1F600}},
        Utf16To32Rule{"a high surrogate at the end passes strict mode too",
                      {0x41, 0xDBFF},
                      {kStrict, kLenient},
                      0,
                      2,
                      {0x41, 0xDBFF}}),
    SentenceOf());

using Utf32To8Rule = Rule<ITEMUTF32, ITEMUTF8>;
class Utf32To8 : public ::testing::TestWithParam<Utf32To8Rule> {};
TEST_P(Utf32To8, Holds) { Expect(kUtf32To8, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf32To8,
    ::testing::Values(Utf32To8Rule{"four bytes reach beyond Unicode",
                                   {0x110000, 0x1FFFFF},
                                   {kStrict, kLenient},
                                   0,
                                   2,
                                   {0xF4, 0x90, 0x80, 0x80, 0xF7, 0xBF, 0xBF,
                                    0xBF}},
                      Utf32To8Rule{"the replacement has two malformed bytes",
                                   {0x200000, 0xFFFFFFFFFFFFFFFF},
                                   {kStrict, kLenient},
                                   0,
                                   2,
                                   {0xFF, 0xBD, 0xFF, 0xBD}},
                      Utf32To8Rule{"the replacement needs room for two bytes",
                                   {0x200000},
                                   {kStrict, kLenient},
                                   2,
                                   0,
                                   {},
                                   1},
                      Utf32To8Rule{"a surrogate stops strict mode",
                                   {0x41, 0xD800},
                                   {kStrict},
                                   3,
                                   1,
                                   {0x41}},
                      Utf32To8Rule{"a surrogate passes lenient mode",
                                   {0xDFFF},
                                   {kLenient},
                                   0,
                                   1,
                                   {0xED, 0xBF, 0xBF}}),
    SentenceOf());

using Utf32To16Rule = Rule<ITEMUTF32, ITEMUTF16>;
class Utf32To16 : public ::testing::TestWithParam<Utf32To16Rule> {};
TEST_P(Utf32To16, Holds) { Expect(kUtf32To16, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf32To16,
    ::testing::Values(
        Utf32To16Rule{"strict mode skips what lies beyond Unicode",
                      {0x41, 0x110000, 0x42},
                      {kStrict},
                      3,
                      3,
                      {0x41, 0x42}},
        Utf32To16Rule{"a value that is skipped needs no room",
                      {0x110000},
                      {kStrict},
                      3,
                      1,
                      {},
                      0},
        Utf32To16Rule{"a full target outweighs a skipped value",
                      {0x110000, 0x41, 0x42},
                      {kStrict},
                      2,
                      2,
                      {0x41},
                      1},
        Utf32To16Rule{"lenient mode replaces what lies beyond Unicode",
                      {0x110000, 0xFFFFFFFF00000041},
                      {kLenient},
                      0,
                      2,
                      {0xFFFD, 0xFFFD}},
        Utf32To16Rule{"a surrogate stops strict mode",
                      {0x110000, 0xDC00, 0x41},
                      {kStrict},
                      3,
                      1,
                      {}},
        Utf32To16Rule{"a surrogate passes lenient mode",
                      {0xDC00},
                      {kLenient},
                      0,
                      1,
                      {0xDC00}}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
