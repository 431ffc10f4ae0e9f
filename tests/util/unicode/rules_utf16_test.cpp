// The rules for UTF-16 sources that callers stumble over, one row each.
#include "tests/support/sentence.h"
#include "tests/util/unicode/rule.h"

namespace velmohelp::testing {
namespace {

using Utf16To8Rule = Rule<ITEMUTF16, ITEMUTF8>;
class Utf16To8 : public ::testing::TestWithParam<Utf16To8Rule> {};
TEST_P(Utf16To8, Holds) { Expect(kUtf16To8, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf16To8,
    ::testing::Values(
        Utf16To8Rule{
            .sentence = "a high surrogate at the end passes strict mode too",
            .source = {0xD800},
            .result = kComplete,
            .consumed = 1,
            .produced = {0xED, 0xA0, 0x80}},
        Utf16To8Rule{.sentence = "a pair becomes four bytes",
                     .source = {0xD83D, 0xDE00},
                     .result = kComplete,
                     .consumed = 2,
                     .produced = {0xF0, 0x9F, 0x98, 0x80}},
        Utf16To8Rule{
            .sentence = "a high surrogate before a letter stops strict mode",
            .source = {0x41, 0xD83D, 0x42},
            .flags = {kStrict},
            .result = kIllegal,
            .consumed = 1,
            .produced = {0x41}},
        Utf16To8Rule{
            .sentence = "a high surrogate before a letter passes lenient mode",
            .source = {0xD83D, 0x42},
            .flags = {kLenient},
            .result = kComplete,
            .consumed = 2,
            .produced = {0xED, 0xA0, 0xBD, 0x42}},
        Utf16To8Rule{
            .sentence = "a pair that does not fit stops at the high surrogate",
            .source = {0x41, 0xD83D, 0xDE00},
            .room = 4,
            .result = kTargetExhausted,
            .consumed = 1,
            .produced = {0x41}},
        Utf16To8Rule{.sentence = "a lone low surrogate stops strict mode "
                                 "before a full target does",
                     .source = {0x41, 0xDC00},
                     .flags = {kStrict},
                     .room = 1,
                     .result = kIllegal,
                     .consumed = 1,
                     .produced = {0x41}},
        Utf16To8Rule{.sentence = "a lone high surrogate stops strict mode "
                                 "before a full target does",
                     .source = {0xD83D, 0x42},
                     .flags = {kStrict},
                     .room = 0,
                     .result = kIllegal},
        Utf16To8Rule{.sentence = "a high surrogate at the end that does not "
                                 "fit exhausts the target",
                     .source = {0xD800},
                     .room = 2,
                     .result = kTargetExhausted}),
    SentenceOf());

using Utf16To32Rule = Rule<ITEMUTF16, ITEMUTF32>;
class Utf16To32 : public ::testing::TestWithParam<Utf16To32Rule> {};
TEST_P(Utf16To32, Holds) { Expect(kUtf16To32, GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rules, Utf16To32,
    ::testing::Values(
        Utf16To32Rule{.sentence = "a lone low surrogate stops strict mode",
                      .source = {0xDC00},
                      .flags = {kStrict},
                      .result = kIllegal},
        Utf16To32Rule{.sentence = "a lone low surrogate passes lenient mode",
                      .source = {0xDC00},
                      .flags = {kLenient},
                      .result = kComplete,
                      .consumed = 1,
                      .produced = {0xDC00}},
        Utf16To32Rule{.sentence = "a high surrogate before a pair is one "
                                  "character in lenient mode",
                      .source = {0xD83D, 0xD83D, 0xDE00},
                      .flags = {kLenient},
                      .result = kComplete,
                      .consumed = 3,
                      .produced = {0xD83D, 0x1F600}},
        Utf16To32Rule{
            .sentence = "a high surrogate at the end passes strict mode too",
            .source = {0x41, 0xDBFF},
            .result = kComplete,
            .consumed = 2,
            .produced = {0x41, 0xDBFF}},
        Utf16To32Rule{.sentence = "a lone low surrogate stops strict mode "
                                  "before a full target does",
                      .source = {0x41, 0xDC00},
                      .flags = {kStrict},
                      .room = 1,
                      .result = kIllegal,
                      .consumed = 1,
                      .produced = {0x41}},
        Utf16To32Rule{.sentence = "a lone high surrogate stops strict mode "
                                  "before a full target does",
                      .source = {0xD83D, 0x42},
                      .flags = {kStrict},
                      .room = 0,
                      .result = kIllegal},
        Utf16To32Rule{
            .sentence = "a pair that does not fit stops at the high surrogate",
            .source = {0x41, 0xD83D, 0xDE00},
            .room = 1,
            .result = kTargetExhausted,
            .consumed = 1,
            .produced = {0x41}}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
