#include "platform/linux/helpers/time_limit.h"

#include <gtest/gtest.h>

#include "tests/support/children.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

/// In seconds, far from each other and from now: no test waits for one.
struct Row {
  const char* sentence;
  /// The timer that the process was started with; 0 for none.
  itimerval before;
  unsigned limit;
  long least;
  long most;
};

const Row kRows[] = {
    {.sentence = "none before",
     .before = {},
     .limit = 3000,
     .least = 2000,
     .most = 3000},
    {.sentence = "one that ends sooner stays",
     .before = {{0, 0}, {1000, 0}},
     .limit = 3000,
     .least = 500,
     .most = 1000},
    {.sentence = "one that ends later is replaced",
     .before = {{0, 0}, {9000, 0}},
     .limit = 3000,
     .least = 2000,
     .most = 3000},
    {.sentence = "one that ends half a second later is replaced",
     .before = {{0, 0}, {3000, 500'000}},
     .limit = 3000,
     .least = 2000,
     .most = 3000},
};

class TimeLimit : public ::testing::TestWithParam<Row> {};

/// A copy has no timer of this process's, and its own ends with it.
TEST_P(TimeLimit, IsTheSoonerTimer) {
  EXPECT_TRUE(testing::InACopy([] {
    setitimer(ITIMER_REAL, &GetParam().before, nullptr);
    velmo_limit_time(GetParam().limit);
    itimerval after = {};
    getitimer(ITIMER_REAL, &after);
    const bool is_set =
        after.it_value.tv_sec != 0 || after.it_value.tv_usec != 0;
    return is_set && after.it_value.tv_sec >= GetParam().least &&
           after.it_value.tv_sec <= GetParam().most;
  }));
}

INSTANTIATE_TEST_SUITE_P(Of, TimeLimit, ::testing::ValuesIn(kRows),
                         testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
