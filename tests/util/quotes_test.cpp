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

TEST_P(StripQuotes, TakesOneFromEitherEnd) {
  EXPECT_EQ(StripDoubleQuotes(GetParam().text), GetParam().stripped);
}

constexpr Row kRows[] = {
    {"both quotes go", "\"abc\"", "abc"},
    {"a leading quote goes", "\"abc", "abc"},
    {"a trailing quote goes", "abc\"", "abc"},
    {"a text without quotes stays", "abc", "abc"},
    {"one quote alone leaves nothing", "\"", ""},
    {"two quotes leave nothing", "\"\"", ""},
    {"three quotes leave one", "\"\"\"", "\""},
    {"four quotes leave two", "\"\"\"\"", "\"\""},
    {"an empty text stays empty", "", ""},
    {"one character stays", "a", "a"},
    {"a quote before one character goes", "\"a", "a"},
    {"a quote behind one character goes", "a\"", "a"},
    {"quotes inside stay", "a\"b\"c", "a\"b\"c"},
    {"a second quote on either side stays", "\"\"a\"\"", "\"a\""},
    {"blanks before a quote keep it", " \"a\" ", " \"a\" "},
    {"single quotes stay", "'a'", "'a'"},
};

INSTANTIATE_TEST_SUITE_P(OfAText, StripQuotes, ::testing::ValuesIn(kRows),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
