// Hosts that have their own way with their children.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cerrno>
#include <csignal>

#include "platform/linux/linux_machine.h"
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
  void SetUp() override {
    struct sigaction action = {};
    action.sa_handler = GetParam().handler;
    action.sa_flags = GetParam().flags;
    sigaction(SIGCHLD, &action, nullptr);
  }
  void TearDown() override {
    std::signal(SIGCHLD, SIG_DFL);
    testing::EndChildren();
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

TEST(AHostWithoutTheRunner, StillRunsTools) {
  testing::TemporaryDirectory directory;
  LinuxMachine machine(directory.path());
  std::signal(SIGCHLD, [](int) {});
  EXPECT_EQ(machine.RunToEnd(directory.WriteScript("tool", "exit 7"), {}), 7);
}

}  // namespace
}  // namespace velmohelp
