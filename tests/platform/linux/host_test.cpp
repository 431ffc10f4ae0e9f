// Hosts that have their own way with their children.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <functional>
#include <thread>
#include <utility>

#include "platform/linux/helper_answers.h"
#include "platform/linux/linux_machine.h"
#include "platform/linux/programs.h"
#include "tests/support/children.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

void TakeEveryChild(int) {
  const int saved = errno;
  while (waitpid(-1, nullptr, WNOHANG) > 0) {
  }
  errno = saved;
}

struct Host {
  const char* sentence;
  void (*handler)(int);
  int flags;
};

class AHost : public ::testing::TestWithParam<Host> {
 protected:
  void SetUp() override { Become(); }
  void TearDown() override {
    std::signal(SIGCHLD, SIG_DFL);
    testing::EndChildren();
  }

  static void Become() {
    struct sigaction action = {};
    action.sa_handler = GetParam().handler;
    action.sa_flags = GetParam().flags;
    sigaction(SIGCHLD, &action, nullptr);
  }

  LinuxMachine& machine() { return machine_; }
  std::string Tool(const std::string& lines) {
    return directory_.WriteScript("tool", lines);
  }

 private:
  testing::TemporaryDirectory directory_;
  LinuxMachine machine_{VELMO_TEST_HELPERS};
};

INSTANTIATE_TEST_SUITE_P(
    Kinds, AHost,
    ::testing::Values(Host{"that leaves its children alone", SIG_DFL, 0},
                      Host{"that ignores its children", SIG_IGN, 0},
                      Host{"that wants no zombies", SIG_DFL, SA_NOCLDWAIT},
                      Host{"whose handler waits for any child", &TakeEveryChild,
                           0},
                      Host{"whose handler waits and restarts calls",
                           &TakeEveryChild, SA_RESTART}),
    testing::SentenceOf());

TEST_P(AHost, LearnsAToolsExitStatus) {
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(machine().RunToEnd(Tool("exit 7"), {"x"}), 7);
  }
  EXPECT_EQ(
      machine().RunToEnd(Tool("test \"$1$2\" = 'a b' && exit 9"), {"a ", "b"}),
      9);
}

TEST_P(AHost, LearnsThatAToolDidNotEndWell) {
  EXPECT_FALSE(machine().RunToEnd("/nonexistent", {}));
  EXPECT_FALSE(machine().RunToEnd(Tool("exit 0") + '\0' + "x", {}));
  EXPECT_FALSE(machine().RunToEnd(Tool("kill -KILL $$"), {}));
}

TEST_P(AHost, ReadsAToolsOutput) {
  EXPECT_EQ(machine().FirstOutput(Tool("echo out"), {}), "out\n");
}

TEST_P(AHost, StartsAViewer) {
  EXPECT_TRUE(machine().StartProgram(Tool("exec sleep 99"), {}));
  EXPECT_FALSE(machine().StartProgram("/nonexistent", {}));
}

TEST_P(AHost, AsksAHelper) {
  EXPECT_TRUE(machine().HostReachability("127.0.0.1").has_value());
}

TEST_P(AHost, KeepsItsOwnWay) {
  machine().RunToEnd(Tool("exit 7"), {});
  machine().FirstOutput(Tool("echo out"), {});
  machine().StartProgram(Tool("exit 0"), {});
  machine().HostReachability("127.0.0.1");
  struct sigaction action = {};
  sigaction(SIGCHLD, nullptr, &action);
  EXPECT_EQ(action.sa_handler, GetParam().handler);
  EXPECT_EQ(action.sa_flags & (SA_NOCLDWAIT | SA_RESTART), GetParam().flags);
}

/// A host's handler may wait for its own child, and takes a SIGCHLD for it.
TEST_P(AHost, HasNoChildOfTheLibrarys) {
  std::signal(SIGCHLD, SIG_DFL);  // the test waits for its copy
  EXPECT_TRUE(testing::InACopy([&] {
    Become();
    machine().RunToEnd(Tool("exit 7"), {});
    machine().FirstOutput(Tool("echo out"), {});
    machine().StartProgram(Tool("exec sleep 99"), {});
    machine().HostReachability("127.0.0.1");
    return waitpid(-1, nullptr, __WALL) == -1 && errno == ECHILD;
  }));
}

volatile sig_atomic_t signals_of_children = 0;

TEST(AHostThatCountsItsChildren, HearsOfItsOwnAlone) {
  const testing::TemporaryDirectory directory;
  const std::string tool = directory.WriteScript("tool", "echo out; exit 7");
  EXPECT_TRUE(testing::InACopy([&] {
    std::signal(SIGCHLD,
                [](int) { signals_of_children = signals_of_children + 1; });
    RunToEnd(tool, {});
    FirstOutput(tool, {});
    StartDetached(tool, {});
    RunToEnd("/nonexistent", {});
    HelperAnswers(VELMO_TEST_HELPERS).HostReachability("127.0.0.1");
    return signals_of_children == 0;
  }));
}

/// A thread that does something again and again while a test runs.
class Meanwhile {
 public:
  explicit Meanwhile(std::function<void()> action)
      : thread_([this, action = std::move(action)] {
          while (!stop_) action();
        }) {}
  Meanwhile(const Meanwhile&) = delete;
  Meanwhile& operator=(const Meanwhile&) = delete;
  ~Meanwhile() {
    stop_ = true;
    thread_.join();
  }

 private:
  std::atomic<bool> stop_ = false;
  std::thread thread_;
};

struct Thief {
  const char* sentence;
  int options;
};

class AHostWithAThreadThatWaits : public ::testing::TestWithParam<Thief> {};

TEST_P(AHostWithAThreadThatWaits, LosesNoStatus) {
  const Meanwhile thief(
      [] { waitpid(-1, nullptr, WNOHANG | GetParam().options); });
  for (int i = 0; i < 100; ++i) {
    ASSERT_EQ(RunToEnd("/bin/sh", {"-c", "exit 7"}), 7) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, AHostWithAThreadThatWaits,
                         ::testing::Values(Thief{"for any child", 0},
                                           Thief{"for any child of any kind",
                                                 __WALL}),
                         testing::SentenceOf());

/// Each copy has the descriptors that were open at its moment, and keeps them.
void ForkACopyThatStays() {
  if (fork() == 0) {
    for (;;) pause();
  }
}

TEST(AHostThatForksInAThread, GetsEveryAnswer) {
  {
    int left = 200;
    const Meanwhile storm([&] {
      if (left-- > 0) ForkACopyThatStays();
    });
    const HelperAnswers helpers(VELMO_TEST_HELPERS);
    for (int i = 0; i < 20; ++i) {
      ASSERT_TRUE(helpers.HostReachability("127.0.0.1")) << i;
      ASSERT_FALSE(helpers.FetchText("no URL", std::chrono::minutes(1))) << i;
      ASSERT_EQ(FirstOutput("/bin/echo", {"x"}), "x\n") << i;
      ASSERT_EQ(FirstOutput("/bin/true", {}), "") << i;
    }
  }
  testing::EndChildren();
}

}  // namespace
}  // namespace velmohelp
