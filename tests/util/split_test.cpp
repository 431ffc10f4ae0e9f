#include <gtest/gtest.h>
#include <velmohelp/resolve.h>

#include "tests/support/map_oracle.h"
#include "tests/support/random_text.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ITEMInternal::DelimitedStringToDeque;
using Fields = std::deque<std::string>;

struct Row {
  const char* sentence;
  std::string text;
  Fields fields;
};

class Split : public ::testing::TestWithParam<Row> {};

TEST_P(Split, GivesFields) {
  Fields fields;
  const int count = DelimitedStringToDeque('\t', GetParam().text, fields);
  EXPECT_EQ(fields, GetParam().fields);
  EXPECT_EQ(count, static_cast<int>(GetParam().fields.size()));
}

const Row kRows[] = {
    {.sentence = "one tab separates two fields",
     .text = "a\tb",
     .fields = {"a", "b"}},
    {.sentence = "a run of tabs separates two fields",
     .text = "a\t\tb",
     .fields = {"a", "b"}},
    {.sentence = "leading and trailing tabs are ignored",
     .text = "\ta\tb\t",
     .fields = {"a", "b"}},
    {.sentence = "a trailing tab is ignored after one field",
     .text = "a\t",
     .fields = {"a"}},
    {.sentence = "trailing tabs are ignored after one field",
     .text = "a\t\t",
     .fields = {"a"}},
    {.sentence = "a TAB on either side of one field is ignored",
     .text = "\ta\t",
     .fields = {"a"}},
    {.sentence = "a leading TAB is kept before a last field",
     .text = "\ta",
     .fields = {"\ta"}},
    {.sentence = "leading tabs are kept before a last field",
     .text = "\t\ta",
     .fields = {"\t\ta"}},
    {.sentence = "tabs alone are one field",
     .text = "\t\t",
     .fields = {"\t\t"}},
    {.sentence = "a tab alone is one field", .text = "\t", .fields = {"\t"}},
    {.sentence = "a text without a TAB is one field",
     .text = "abc",
     .fields = {"abc"}},
    {.sentence = "an empty text has no field", .text = "", .fields = {}},
    {.sentence = "there may be many fields",
     .text = "a\tb\t\tc\t\t\td",
     .fields = {"a", "b", "c", "d"}},
    {.sentence = "spaces belong to their field",
     .text = " a \t b c ",
     .fields = {" a ", " b c "}},
    {.sentence = "a NUL byte belongs to its field",
     .text = "a\0b\t\0"s,
     .fields = {"a\0b"s, "\0"s}},
};

INSTANTIATE_TEST_SUITE_P(AtTabs, Split, ::testing::ValuesIn(kRows),
                         SentenceOf());

TEST(SplitIntoAQueue, AppendsAndCountsOnlyWhatItAppends) {
  Fields fields = {"old"};
  EXPECT_EQ(DelimitedStringToDeque('\t', "a\tb", fields), 2);
  EXPECT_EQ(DelimitedStringToDeque('\t', "", fields), 0);
  EXPECT_EQ(DelimitedStringToDeque('\t', "c", fields), 1);
  EXPECT_EQ(fields, (Fields{"old", "a", "b", "c"}));
}

TEST(SplitIntoAQueue, TakesItsTextAndDelimiterFromTheQueueItself) {
  Fields fields = {",a,b,"};
  EXPECT_EQ(DelimitedStringToDeque(fields[0][0], fields[0], fields), 2);
  EXPECT_EQ(fields, (Fields{",a,b,", "a", "b"}));
}

TEST(SplitAtAnyByte, TakesTheByteAsDelimiter) {
  for (const char delimiter : AllBytes()) {
    const char other = delimiter == 'x' ? 'y' : 'x';
    Fields fields;
    const std::string text = {other, delimiter, delimiter, other};
    EXPECT_EQ(DelimitedStringToDeque(delimiter, text, fields), 2);
    EXPECT_EQ(fields[0], std::string(1, other));
  }
}

TEST(SplitOfRandomTexts, IsAsTheOracle) {
  RandomText random("\t\t\tab\n");
  for (int i = 0; i < 20'000; ++i) {
    const std::string text = random.Next(random.Below(12));
    Fields fields;
    DelimitedStringToDeque('\t', text, fields);
    ASSERT_EQ(fields, OracleFields('\t', text))
        << ::testing::PrintToString(text);
  }
}

TEST(SplitOfMegabytes, GivesAllFields) {
  std::string text(2'000'000, '\t');
  for (int i = 0; i < 1'000'000; ++i) text += "a\t";
  Fields fields;
  EXPECT_EQ(DelimitedStringToDeque('\t', text, fields), 1'000'000);
  Fields one;
  EXPECT_EQ(DelimitedStringToDeque('\t', std::string(8'000'000, '\t'), one), 1);
}

}  // namespace
}  // namespace velmohelp::testing
