#include <gtest/gtest.h>
#include <velmohelp/text.h>

#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

struct Row {
  const char* sentence;
  const char* text;
  const char* stripped;
};

class StripQuotes : public ::testing::TestWithParam<Row> {};

TEST_P(StripQuotes, LoseOneAtEitherEnd) {
  EXPECT_EQ(StripDoubleQuotes(GetParam().text), GetParam().stripped);
}

constexpr Row kRows[] = {
    {.sentence = "both quotes are removed",
     .text = "\"abc\"",
     .stripped = "abc"},
    {.sentence = "a leading quote is removed",
     .text = "\"abc",
     .stripped = "abc"},
    {.sentence = "a trailing quote is removed",
     .text = "abc\"",
     .stripped = "abc"},
    {.sentence = "a text without quotes stays",
     .text = "abc",
     .stripped = "abc"},
    {.sentence = "one quote alone leaves nothing",
     .text = "\"",
     .stripped = ""},
    {.sentence = "two quotes leave nothing", .text = "\"\"", .stripped = ""},
    {.sentence = "three quotes leave one", .text = "\"\"\"", .stripped = "\""},
    {.sentence = "four quotes leave two",
     .text = "\"\"\"\"",
     .stripped = "\"\""},
    {.sentence = "an empty text stays empty", .text = "", .stripped = ""},
    {.sentence = "one character stays", .text = "a", .stripped = "a"},
    {.sentence = "a quote before one character is removed",
     .text = "\"a",
     .stripped = "a"},
    {.sentence = "a quote after one character is removed",
     .text = "a\"",
     .stripped = "a"},
    {.sentence = "quotes inside stay",
     .text = "a\"b\"c",
     .stripped = "a\"b\"c"},
    {.sentence = "a second quote on either side stays",
     .text = "\"\"a\"\"",
     .stripped = "\"a\""},
    {.sentence = "spaces before a quote protect it",
     .text = " \"a\" ",
     .stripped = " \"a\" "},
    {.sentence = "single quotes stay", .text = "'a'", .stripped = "'a'"},
};

INSTANTIATE_TEST_SUITE_P(OfAText, StripQuotes, ::testing::ValuesIn(kRows),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
