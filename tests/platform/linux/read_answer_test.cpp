// The form of a helper's answer.
#include "platform/linux/read_answer.h"

#include <gtest/gtest.h>

#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

constexpr std::size_t kLimit = 20;

struct Row {
  const char* sentence;
  std::string text;
  AnswerState state = AnswerState::kMalformed;
  std::string answer = "untouched";
};

class AnAnswer : public ::testing::TestWithParam<Row> {};

TEST_P(AnAnswer, IsANetstring) {
  std::string_view answer = "untouched";
  EXPECT_EQ(ParseAnswer(GetParam().text, kLimit, answer), GetParam().state);
  EXPECT_EQ(answer, GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(
    Complete, AnAnswer,
    ::testing::Values(Row{.sentence = "five bytes",
                          .text = "5:hello,",
                          .state = AnswerState::kComplete,
                          .answer = "hello"},
                      Row{.sentence = "no bytes",
                          .text = "0:,",
                          .state = AnswerState::kComplete,
                          .answer = ""},
                      Row{.sentence = "as many bytes as the limit",
                          .text = "20:" + std::string(20, 'x') + ",",
                          .state = AnswerState::kComplete,
                          .answer = std::string(20, 'x')},
                      Row{.sentence = "separators inside",
                          .text = "4:1:,,,",
                          .state = AnswerState::kComplete,
                          .answer = "1:,,"},
                      Row{.sentence = "zero bytes inside",
                          .text = std::string("3:a\0b,", 6),
                          .state = AnswerState::kComplete,
                          .answer = std::string("a\0b", 3)},
                      Row{.sentence = "more after the end",
                          .text = "5:hello,5:again,",
                          .state = AnswerState::kComplete,
                          .answer = "hello"}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Incomplete, AnAnswer,
    ::testing::Values(Row{.sentence = "nothing yet",
                          .text = "",
                          .state = AnswerState::kIncomplete},
                      Row{.sentence = "half a length",
                          .text = "1",
                          .state = AnswerState::kIncomplete},
                      Row{.sentence = "a length alone",
                          .text = "5:",
                          .state = AnswerState::kIncomplete},
                      Row{.sentence = "all bytes but the comma",
                          .text = "5:hello",
                          .state = AnswerState::kIncomplete}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Malformed, AnAnswer,
    ::testing::Values(
        Row{.sentence = "one byte more than the limit",
            .text = "21:" + std::string(21, 'x') + ","},
        Row{.sentence = "a length beyond the limit, before its bytes",
            .text = "9999999999:"},
        Row{.sentence = "eleven digits", .text = "00000000005"},
        Row{.sentence = "no length", .text = ":hello,"},
        Row{.sentence = "a negative length", .text = "-5:hello,"},
        Row{.sentence = "a length with a space", .text = " 5:hello,"},
        Row{.sentence = "a length in letters", .text = "5a:hello,"},
        Row{.sentence = "fewer bytes than announced", .text = "6:hello,x"},
        Row{.sentence = "plain text", .text = "reachable\n."}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
