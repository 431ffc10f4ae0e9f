// The form of a helper's answer.
#include "platform/linux/read_answer.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include "platform/linux/pipe.h"
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

/// The timeout is for the whole answer: a byte now and then buys no time. A
/// file always has more to read, and nobody reads this one in a millisecond.
TEST(ReadingAnAnswer, EndsAtItsTimeoutHoweverMuchIsThere) {
  constexpr std::size_t kSize = std::size_t{64} << 20U;
  const std::string start = std::to_string(kSize) + ":";
  const auto end = static_cast<off_t>(start.size() + kSize);
  const UniqueFd file(memfd_create("answer", MFD_CLOEXEC));
  ASSERT_EQ(write(file.get(), start.data(), start.size()), start.size());
  ASSERT_EQ(pwrite(file.get(), ",", 1, end), 1);
  lseek(file.get(), 0, SEEK_SET);
  EXPECT_FALSE(ReadAnswer(file, std::chrono::milliseconds(1), kSize));
}

/// The test holds the other end open, as a process that the host forks would.
TEST(ReadingAnAnswer, DoesNotWaitForTheEndOfTheFile) {
  auto pipe = MakePipe();
  ASSERT_TRUE(pipe);
  ASSERT_EQ(write(pipe->write_end.get(), "5:hello,", 8), 8);
  EXPECT_EQ(ReadAnswer(pipe->read_end, std::chrono::hours(1), kLimit), "hello");
}

TEST(ReadingAnAnswer, FailsAtTheEndOfTheFile) {
  auto pipe = MakePipe();
  ASSERT_TRUE(pipe);
  ASSERT_EQ(write(pipe->write_end.get(), "5:hel", 5), 5);
  pipe->write_end.Close();
  EXPECT_FALSE(ReadAnswer(pipe->read_end, std::chrono::hours(1), kLimit));
}

TEST(ReadingAnAnswer, EndsAtItsTimeoutWhenNothingComes) {
  auto pipe = MakePipe();
  ASSERT_TRUE(pipe);
  EXPECT_FALSE(
      ReadAnswer(pipe->read_end, std::chrono::milliseconds(20), kLimit));
}

}  // namespace
}  // namespace velmohelp
