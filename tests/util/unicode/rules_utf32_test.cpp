// The rules for UTF-32 sources that callers stumble over, one row each.
#include "tests/support/sentence.h"
#include "tests/util/unicode/rule.h"

namespace velmohelp::testing {
namespace {

using Utf32To8Rule = Rule<ITEMUTF32, ITEMUTF8>;
class Utf32To8 : public ::testing::TestWithParam<Utf32To8Rule> {};
TEST_P(Utf32To8, Holds) { Expect(kUtf32To8, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf32To8,
    ::testing::Values(
        Utf32To8Rule{
            .sentence = "four bytes reach beyond Unicode",
            .source = {0x110000, 0x1FFFFF},
            .result = kComplete,
            .consumed = 2,
            .produced = {0xF4, 0x90, 0x80, 0x80, 0xF7, 0xBF, 0xBF, 0xBF}},
        Utf32To8Rule{.sentence = "the replacement has two malformed bytes",
                     .source = {0x200000, 0xFFFFFFFFFFFFFFFF},
                     .result = kComplete,
                     .consumed = 2,
                     .produced = {0xFF, 0xBD, 0xFF, 0xBD}},
        Utf32To8Rule{.sentence = "the replacement needs room for two bytes",
                     .source = {0x200000},
                     .room = 1,
                     .result = kTargetExhausted},
        Utf32To8Rule{.sentence = "a surrogate stops strict mode",
                     .source = {0x41, 0xD800},
                     .flags = {kStrict},
                     .result = kIllegal,
                     .consumed = 1,
                     .produced = {0x41}},
        Utf32To8Rule{.sentence = "a surrogate passes lenient mode",
                     .source = {0xDFFF},
                     .flags = {kLenient},
                     .result = kComplete,
                     .consumed = 1,
                     .produced = {0xED, 0xBF, 0xBF}},
        Utf32To8Rule{
            .sentence =
                "a surrogate stops strict mode before a full target does",
            .source = {0x41, 0xD800},
            .flags = {kStrict},
            .room = 1,
            .result = kIllegal,
            .consumed = 1,
            .produced = {0x41}},
        Utf32To8Rule{.sentence = "a surrogate that does not fit exhausts the "
                                 "target in lenient mode",
                     .source = {0xDFFF},
                     .flags = {kLenient},
                     .room = 2,
                     .result = kTargetExhausted}),
    SentenceOf());

using Utf32To16Rule = Rule<ITEMUTF32, ITEMUTF16>;
class Utf32To16 : public ::testing::TestWithParam<Utf32To16Rule> {};
TEST_P(Utf32To16, Holds) { Expect(kUtf32To16, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf32To16,
    ::testing::Values(
        Utf32To16Rule{.sentence = "strict mode skips a value above 0x10FFFF",
                      .source = {0x41, 0x110000, 0x42},
                      .flags = {kStrict},
                      .result = kIllegal,
                      .consumed = 3,
                      .produced = {0x41, 0x42}},
        Utf32To16Rule{.sentence = "a skipped value uses no room",
                      .source = {0x110000, 0x41, 0x110000},
                      .flags = {kStrict},
                      .room = 1,
                      .result = kTargetExhausted,
                      .consumed = 2,
                      .produced = {0x41}},
        Utf32To16Rule{
            .sentence = "a skipped value at the end ends with illegal",
            .source = {0x41, 0x110000},
            .flags = {kStrict},
            .room = 2,
            .result = kIllegal,
            .consumed = 2,
            .produced = {0x41}},
        Utf32To16Rule{
            .sentence = "the room is checked before a value is skipped",
            .source = {0x110000},
            .room = 0,
            .result = kTargetExhausted},
        Utf32To16Rule{
            .sentence =
                "a full target stops before a value that would be skipped",
            .source = {0x41, 0xFFFFFFFF00000041},
            .room = 1,
            .result = kTargetExhausted,
            .consumed = 1,
            .produced = {0x41}},
        Utf32To16Rule{
            .sentence = "a full target takes precedence over a skipped value",
            .source = {0x110000, 0x41, 0x42},
            .flags = {kStrict},
            .room = 1,
            .result = kTargetExhausted,
            .consumed = 2,
            .produced = {0x41}},
        Utf32To16Rule{
            .sentence = "lenient mode replaces a value above 0x10FFFF",
            .source = {0x110000, 0xFFFFFFFF00000041},
            .flags = {kLenient},
            .result = kComplete,
            .consumed = 2,
            .produced = {0xFFFD, 0xFFFD}},
        Utf32To16Rule{.sentence = "a surrogate stops strict mode",
                      .source = {0x110000, 0xDC00, 0x41},
                      .flags = {kStrict},
                      .result = kIllegal,
                      .consumed = 1},
        Utf32To16Rule{.sentence = "a surrogate passes lenient mode",
                      .source = {0xDC00},
                      .flags = {kLenient},
                      .result = kComplete,
                      .consumed = 1,
                      .produced = {0xDC00}},
        Utf32To16Rule{
            .sentence = "the room is checked before a strict surrogate",
            .source = {0xDC00},
            .room = 0,
            .result = kTargetExhausted},
        Utf32To16Rule{
            .sentence = "a full target stops before a strict surrogate",
            .source = {0x41, 0xD800},
            .room = 1,
            .result = kTargetExhausted,
            .consumed = 1,
            .produced = {0x41}},
        Utf32To16Rule{.sentence = "a pair is written whole or not at all",
                      .source = {0x41, 0x1F600},
                      .room = 2,
                      .result = kTargetExhausted,
                      .consumed = 1,
                      .produced = {0x41}}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
