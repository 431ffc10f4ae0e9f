// The rules for UTF-8 sources that callers stumble over, one row each.
#include "tests/support/sentence.h"
#include "tests/util/unicode/rule.h"

namespace velmohelp::testing {
namespace {

using Utf8To16Rule = Rule<ITEMUTF8, ITEMUTF16>;
class Utf8To16 : public ::testing::TestWithParam<Utf8To16Rule> {};
TEST_P(Utf8To16, Holds) { Expect(kUtf8To16, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf8To16,
    ::testing::Values(
        Utf8To16Rule{.sentence = "text is converted to its end",
                     .source = {0x41, 0xC3, 0xA9, 0xE2, 0x82, 0xAC, 0xF0, 0x9F,
                                0x98, 0x80},
                     .flags = {kStrict, kLenient, -1, 256},
                     .result = kComplete,
                     .consumed = 10,
                     .produced = {0x41, 0xE9, 0x20AC, 0xD83D, 0xDE00}},
        Utf8To16Rule{
            .sentence = "an empty source is complete even without room",
            .source = {},
            .room = 0,
            .result = kComplete},
        Utf8To16Rule{.sentence = "an incomplete sequence exhausts the source",
                     .source = {0xE2, 0x82},
                     .result = kSourceExhausted},
        Utf8To16Rule{
            .sentence = "text before an incomplete sequence is converted",
            .source = {0x41, 0x42, 0xE2},
            .result = kSourceExhausted,
            .consumed = 2,
            .produced = {0x41, 0x42}},
        Utf8To16Rule{
            .sentence = "an incomplete sequence is not checked for legality",
            .source = {0xE2, 0x28},
            .result = kSourceExhausted},
        Utf8To16Rule{
            .sentence = "an incomplete six byte form exhausts the source",
            .source = {0xFF, 0x41, 0x41, 0x41, 0x41},
            .result = kSourceExhausted},
        Utf8To16Rule{
            .sentence =
                "an incomplete sequence exhausts the source even without room",
            .source = {0xE2, 0x82},
            .room = 0,
            .result = kSourceExhausted},
        Utf8To16Rule{.sentence = "a complete six byte form is illegal",
                     .source = {0xFC, 0x84, 0x80, 0x80, 0x80, 0x80},
                     .result = kIllegal},
        Utf8To16Rule{.sentence = "a surrogate form stops strict mode",
                     .source = {0x41, 0xED, 0xA0, 0x80},
                     .flags = {kStrict},
                     .result = kIllegal,
                     .consumed = 1,
                     .produced = {0x41}},
        Utf8To16Rule{.sentence = "a surrogate form passes lenient mode",
                     .source = {0xED, 0xA0, 0x80, 0xED, 0xBF, 0xBF},
                     .flags = {kLenient, -1},
                     .result = kComplete,
                     .consumed = 6,
                     .produced = {0xD800, 0xDFFF}},
        Utf8To16Rule{
            .sentence = "an overlong form is illegal in lenient mode too",
            .source = {0xC0, 0x80},
            .result = kIllegal},
        Utf8To16Rule{.sentence = "an overlong three byte form is illegal",
                     .source = {0x41, 0xE0, 0x9F, 0xBF},
                     .result = kIllegal,
                     .consumed = 1,
                     .produced = {0x41}},
        Utf8To16Rule{.sentence = "an overlong four byte form is illegal",
                     .source = {0xF0, 0x8F, 0xBF, 0xBF},
                     .result = kIllegal},
        Utf8To16Rule{.sentence = "a code point above U+10FFFF is illegal",
                     .source = {0xF4, 0x90, 0x80, 0x80},
                     .result = kIllegal},
        Utf8To16Rule{.sentence = "a stray trailing byte is illegal",
                     .source = {0x80},
                     .result = kIllegal},
        Utf8To16Rule{.sentence = "a pair is written whole or not at all",
                     .source = {0xF0, 0x9F, 0x98, 0x80},
                     .room = 1,
                     .result = kTargetExhausted},
        Utf8To16Rule{.sentence = "a full target stops before the character",
                     .source = {0x41, 0xC3, 0xA9},
                     .room = 1,
                     .result = kTargetExhausted,
                     .consumed = 1,
                     .produced = {0x41}},
        Utf8To16Rule{.sentence = "legality is checked before the room",
                     .source = {0xC3, 0x28},
                     .room = 0,
                     .result = kIllegal},
        Utf8To16Rule{
            .sentence = "the room is checked before a strict surrogate",
            .source = {0xED, 0xA0, 0x80},
            .room = 0,
            .result = kTargetExhausted},
        Utf8To16Rule{
            .sentence = "a full target stops before a strict surrogate",
            .source = {0x41, 0xED, 0xA0, 0x80},
            .room = 1,
            .result = kTargetExhausted,
            .consumed = 1,
            .produced = {0x41}}),
    SentenceOf());

using Utf8To32Rule = Rule<ITEMUTF8, ITEMUTF32>;
class Utf8To32 : public ::testing::TestWithParam<Utf8To32Rule> {};
TEST_P(Utf8To32, Holds) { Expect(kUtf8To32, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf8To32,
    ::testing::Values(
        Utf8To32Rule{.sentence = "units have 64 bits",
                     .source = {0x41, 0xF4, 0x8F, 0xBF, 0xBF},
                     .result = kComplete,
                     .consumed = 5,
                     .produced = {0x41, 0x10FFFF}},
        Utf8To32Rule{.sentence = "a surrogate form passes strict mode too",
                     .source = {0xED, 0xA0, 0x80},
                     .result = kComplete,
                     .consumed = 3,
                     .produced = {0xD800}},
        Utf8To32Rule{.sentence = "an illegal sequence stops lenient mode too",
                     .source = {0xC3, 0x28},
                     .result = kIllegal},
        Utf8To32Rule{
            .sentence =
                "an incomplete sequence exhausts the source even without room",
            .source = {0xE2, 0x82},
            .room = 0,
            .result = kSourceExhausted},
        Utf8To32Rule{.sentence = "legality is checked before the room",
                     .source = {0xC3, 0x28},
                     .room = 0,
                     .result = kIllegal},
        Utf8To32Rule{.sentence = "a full target stops before a surrogate form",
                     .source = {0x41, 0xED, 0xA0, 0x80},
                     .room = 1,
                     .result = kTargetExhausted,
                     .consumed = 1,
                     .produced = {0x41}}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
