// The memory that one start keeps for the next.
#include "platform/linux/launch_memory.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/programs.h"
#include "tests/support/children.h"

namespace velmohelp {
namespace {

class KeptMemory : public ::testing::Test {
 protected:
  KeptMemory() { LaunchMemory::UsePrivateMemory(); }
};

LaunchReport* ReportOfAStart() {
  const LaunchMemory memory;
  return memory.report();
}

TEST_F(KeptMemory, IsUsedAgainByTheNextStart) {
  EXPECT_EQ(ReportOfAStart(), ReportOfAStart());
}

TEST_F(KeptMemory, IsUsedByOneStartAtATime) {
  const LaunchMemory one;
  const LaunchMemory other;
  EXPECT_NE(one.report(), other.report());
}

TEST_F(KeptMemory, BringsNoReportOfThePreviousStart) {
  {
    const LaunchMemory previous;
    std::memset(previous.report(), 1, sizeof(LaunchReport));
  }
  const LaunchMemory memory;
  EXPECT_FALSE(memory.report()->complete);
  EXPECT_EQ(memory.report()->error, 0);
  EXPECT_EQ(memory.report()->output_size, 0);
}

// A confined child could otherwise decide where the host's next start runs.
TEST_F(KeptMemory, CannotBeWrittenByAForkedChild) {
  char* kept = ReportOfAStart()->output;
  EXPECT_TRUE(testing::InACopy([kept] {
    std::strcpy(kept, "written by the child");
    return true;
  }));
  EXPECT_STRNE(kept, "written by the child");
}

TEST_F(KeptMemory, IsAChildsOwnAfterAFork) {
  ASSERT_EQ(RunToEnd("/bin/true", {}), 0);
  EXPECT_TRUE(testing::InACopy([] {
    return RunToEnd("/bin/true", {}) == 0 && RunToEnd("/bin/false", {}) == 1;
  }));
  EXPECT_EQ(RunToEnd("/bin/true", {}), 0);
}

/// The output of a program, as often as the threads of a busy host ask for it.
void AskOften(const std::string& word, std::atomic<int>& wrong) {
  for (int i = 0; i < 50; ++i) {
    if (FirstOutput("/bin/echo", {"-n", word}) != word) ++wrong;
  }
}

TEST_F(KeptMemory, GivesEachThreadItsOwnOutput) {
  std::atomic<int> wrong = 0;
  std::vector<std::thread> threads;
  for (const char* word : {"one", "two", "three"}) {
    threads.emplace_back(AskOften, word, std::ref(wrong));
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace velmohelp
