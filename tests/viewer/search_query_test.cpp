#include "viewer/content/search_query.h"

#include <gmock/gmock.h>

#include "tests/support/sentence.h"

namespace viewer {
namespace {

using ::testing::ElementsAre;
using velmohelp::testing::SentenceOf;

struct Row {
  const char* sentence;
  const char* text;
  const char* query;
};

class QueryOf : public ::testing::TestWithParam<Row> {};

TEST_P(QueryOf, AText) {
  EXPECT_EQ(AllWords(WordsOf(GetParam().text)), GetParam().query);
}

constexpr Row kTexts[] = {
    {"the last word may still be typed", "page num", "\"page\" \"num\"*"},
    {"operators are words like any other", "a AND (b OR c) NEAR*",
     "\"a\" \"AND\" \"b\" \"OR\" \"c\" \"NEAR\"*"},
    {"quotes are no part of a word", "\"a\"b\"", "\"a\" \"b\"*"},
    {"letters beyond ASCII belong to words", "\u00fcber", "\"\u00fcber\"*"},
    {"a text of signs alone has no query", " -*:^\"", ""},
};

INSTANTIATE_TEST_SUITE_P(, QueryOf, ::testing::ValuesIn(kTexts), SentenceOf());

TEST(SearchQuery, SplitsAPageIdAtSignsAndCapitals) {
  EXPECT_THAT(WordsOfId(".uno:PrintPreview_2"),
              ElementsAre("uno", "Print", "Preview", "2"));
}

class TermOf : public ::testing::TestWithParam<Row> {};

TEST_P(TermOf, ARequest) {
  EXPECT_EQ(DecodeSearchTerm(GetParam().text), GetParam().query);
}

constexpr Row kTerms[] = {
    {"escapes are decoded", "a%20b%2d%c3%9c", "a b-\u00dc"},
    {"capital digits are decoded", "%C3%9C", "\u00dc"},
    {"a sign that is no escape stays", "100%25 50% %zz", "100% 50% %zz"},
    {"a plus stays", "a+b", "a+b"},
};

INSTANTIATE_TEST_SUITE_P(, TermOf, ::testing::ValuesIn(kTerms), SentenceOf());

}  // namespace
}  // namespace viewer
