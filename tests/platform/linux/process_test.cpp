// Running programs: what is answered.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/sched.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/times.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/linux/child_reaper.h"
#include "platform/linux/helper_answers.h"
#include "platform/linux/linux_machine.h"
#include "platform/linux/pipe.h"
#include "platform/linux/preference_store.h"
#include "platform/linux/programs.h"
#include "tests/support/children.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

class Running : public ::testing::Test {
 protected:
  ~Running() override { testing::EndChildren(); }

  LinuxMachine& machine() { return machine_; }
  const testing::TemporaryDirectory& directory() const { return directory_; }

 private:
  testing::TemporaryDirectory directory_;
  LinuxMachine machine_{VELMO_TEST_HELPERS};
};

TEST_F(Running, HasNoStatusForAProgramThatASignalEnded) {
  EXPECT_FALSE(
      machine().RunToEnd(directory().WriteScript("tool", "kill -KILL $$"), {}));
}

TEST_F(Running, HasNoStatusForWhatIsNoProgram) {
  EXPECT_FALSE(machine().RunToEnd(directory().Write("data", "exit 0"), {}));
  EXPECT_FALSE(machine().RunToEnd(directory().path(), {}));
  EXPECT_FALSE(machine().RunToEnd("sh", {"-c", "exit 0"}));
}

TEST_F(Running, NeverHandsATextToAShell) {
  const std::string text = directory().Write("text", "exit 0");
  ASSERT_EQ(chmod(text.c_str(), S_IRWXU), 0);
  EXPECT_FALSE(machine().RunToEnd(text, {}));
  EXPECT_FALSE(machine().FirstOutput(text, {}));
  EXPECT_FALSE(machine().StartProgram(text, {}));
}

TEST_F(Running, TakesAPathWithANulForNoProgram) {
  using namespace std::string_literals;
  EXPECT_FALSE(machine().RunToEnd("/bin/true\0x"s, {}));
}

TEST_F(Running, ReadsOutputOnceAndWaitsForNoEnd) {
  const std::string pipe = directory() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), S_IRWXU), 0);
  const std::string tool =
      directory().WriteScript("tool", "printf one; exec cat '" + pipe + "'");
  EXPECT_EQ(machine().FirstOutput(tool, {}), "one");
}

TEST_F(Running, ReadsAtLeastWhatFitsAPath) {
  const auto output = machine().FirstOutput(
      directory().WriteScript("tool", "printf '%01024d' 0"), {});
  ASSERT_TRUE(output);
  EXPECT_EQ(*output, std::string(1024, '0'));
}

TEST_F(Running, LeavesAViewerRunning) {
  const std::string viewer = directory().WriteScript("viewer", "exec sleep 99");
  EXPECT_TRUE(machine().StartProgram(viewer, {}));
  EXPECT_EQ(testing::Children().size(), 1U);
}

TEST_F(Running, LeavesNoZombieBehindALaterCall) {
  const std::string tool = directory().WriteScript("tool", "exit 0");
  for (int i = 0; i < 3; ++i) machine().FirstOutput(tool, {});
  machine().StartProgram(tool, {});
  testing::AwaitEndOfChildren();
  machine().RunToEnd(tool, {});
  EXPECT_TRUE(testing::Children().empty());
}

TEST_F(Running, LeavesNoZombieBehindTheLibrary) {
  {
    LinuxMachine machine{VELMO_TEST_HELPERS};
    machine.FirstOutput(directory().WriteScript("tool", "exit 0"), {});
    testing::AwaitEndOfChildren();
  }
  EXPECT_TRUE(testing::Children().empty());
}

TEST_F(Running, LeavesTheHostsChildrenToTheHost) {
  const pid_t child = fork();
  if (child == 0) _exit(3);
  testing::AwaitEndOfChildren();
  const std::string tool = directory().WriteScript("tool", "exit 0");
  machine().RunToEnd(tool, {});
  machine().FirstOutput(tool, {});
  machine().StartProgram(tool, {});
  machine().RunToEnd(tool, {});
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), 3);
}

/// A child with a number of the caller's choice; -1 where that is not allowed.
pid_t ForkAs(pid_t wanted) {
  clone_args arguments = {};
  arguments.exit_signal = SIGCHLD;
  arguments.set_tid = reinterpret_cast<std::uintptr_t>(&wanted);
  arguments.set_tid_size = 1;
  return static_cast<pid_t>(syscall(SYS_clone3, &arguments, sizeof arguments));
}

/// Processes' start times are told in these ticks.
void AwaitNextTick() {
  const clock_t now = times(nullptr);
  while (times(nullptr) < now + 2) {
  }
}

TEST_F(Running, LeavesAChildOfTheHostsThatHasAnOldNumberToTheHost) {
  const std::string tool = directory().WriteScript("tool", "exit 0");
  machine().FirstOutput(tool, {});
  const pid_t number = wait(nullptr);  // the host waits for any child
  AwaitNextTick();
  const pid_t child = ForkAs(number);
  if (child == 0) _exit(3);
  if (child < 0) {
    GTEST_SKIP() << "this system does not let a test choose a process's number";
  }
  testing::AwaitEndOfChildren();
  machine().RunToEnd(tool, {});
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), 3);
}

TEST_F(Running, GoesOnAfterASignalOfTheHosts) {
  struct sigaction action = {};
  action.sa_handler = [](int) {};  // no SA_RESTART
  sigaction(SIGUSR1, &action, nullptr);
  const std::string tool = directory().WriteScript(
      "tool",
      "for i in 1 2 3 4 5 6 7 8; do kill -USR1 $PPID; done\n"
      "echo out; exit 5");
  EXPECT_EQ(machine().RunToEnd(tool, {}), 5);
  EXPECT_EQ(machine().FirstOutput(tool, {}), "out\n");
}

/// Fills the descriptor table of this process but for the given number.
void FillDescriptorTable(int left) {
  const rlimit limit = {64, 64};
  setrlimit(RLIMIT_NOFILE, &limit);
  int last = 0;
  while ((last = open("/dev/null", O_RDONLY)) != -1) {
    if (64 - last <= left) {
      close(last);
      return;
    }
  }
}

// Not through the machine: the sanitizer's look at an object with virtual
// functions takes a descriptor itself.
TEST_F(Running, CannotReadWithAFullDescriptorTable) {
  const std::string tool = directory().WriteScript("tool", "echo x; exit 4");
  directory().Write("domain.conf", "[Preferences]\nKey=0\n");
  Programs programs(VELMO_TEST_HELPERS "/velmohelp-run");
  HelperAnswers helpers(VELMO_TEST_HELPERS, programs);
  EXPECT_TRUE(testing::InACopy([&] {
    FillDescriptorTable(0);
    return !programs.FirstOutput(tool, {}) &&
           !helpers.HostReachability("127.0.0.1") &&
           !ReadPreferenceIn(directory().path(), "domain", "Key") &&
           programs.RunToEnd(tool, {}) == 4;
  }));
}

TEST_F(Running, CannotReadWithRoomForHalfAPipe) {
  const std::string tool = directory().WriteScript("tool", "echo x");
  Programs programs("");
  EXPECT_TRUE(testing::InACopy([&] {
    FillDescriptorTable(1);
    const bool no_output = !programs.FirstOutput(tool, {});
    // Nothing was leaked: the one place is there still.
    return no_output && open("/dev/null", O_RDONLY) == 63;
  }));
}

TEST_F(Running, ReadsInAHostWithoutStandardStreams) {
  const std::string tool = directory().WriteScript("tool", "echo out; exit 6");
  EXPECT_TRUE(testing::InACopy([&] {
    close(0);
    close(1);
    close(2);
    return machine().FirstOutput(tool, {}) == "out\n" &&
           machine().RunToEnd(tool, {}) == 6 &&
           machine().HostReachability("127.0.0.1").has_value() &&
           fcntl(0, F_GETFD) == -1 && fcntl(1, F_GETFD) == -1;
  }));
}

// What such a host prints meanwhile must not end in the tool's answer.
TEST(PipeOfAHostWithoutStandardStreams, IsNoneOfThem) {
  EXPECT_TRUE(testing::InACopy([] {
    close(0);
    close(1);
    close(2);
    const auto pipe = MakePipe();
    return pipe && pipe->read_end.get() > 2 && pipe->write_end.get() > 2 &&
           fcntl(0, F_GETFD) == -1 && fcntl(1, F_GETFD) == -1;
  }));
}

TEST_F(Running, LeavesTheHostsDescriptorsAsTheyWere) {
  const std::string tool = directory().WriteScript("tool", "echo out");
  const int before = dup(0);
  close(before);
  for (int i = 0; i < 3; ++i) {
    machine().RunToEnd(tool, {});
    machine().FirstOutput(tool, {});
    machine().StartProgram(tool, {});
    machine().HostReachability("127.0.0.1");
    machine().FirstOutput(directory() / "missing", {});
  }
  const int after = dup(0);
  close(after);
  EXPECT_EQ(after, before);
}

struct StatRow {
  const char* sentence;
  const char* text;
  std::uint64_t start_time;
};

class StartTimeOfAProcess : public ::testing::TestWithParam<StatRow> {};

TEST_P(StartTimeOfAProcess, IsTheTwentySecondField) {
  EXPECT_EQ(StartTimeInText(GetParam().text), GetParam().start_time);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StartTimeOfAProcess,
    ::testing::Values(
        StatRow{"a plain name",
                "9 (sh) S 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 "
                "23",
                22},
        StatRow{"a name with blanks and parentheses",
                "9 (a) b) (c) S 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 "
                "21 22 23",
                22},
        StatRow{"too few fields", "9 (sh) S 4 5 6", 0},
        StatRow{"no name", "9 sh S 4 5 6", 0}, StatRow{"nothing", "", 0}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
