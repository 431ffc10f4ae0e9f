// Running programs: what is returned, and what is left in the host.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <functional>

#include "platform/linux/files.h"
#include "platform/linux/helper_answers.h"
#include "platform/linux/linux_machine.h"
#include "platform/linux/pipe.h"
#include "platform/linux/preference_store.h"
#include "platform/linux/programs.h"
#include "tests/support/children.h"
#include "tests/support/sentence.h"
#include "tests/support/signal_mask.h"
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

/// A host that is not a child subreaper: here its programs become children of
/// the test, elsewhere of init.
TEST_F(Running, GivesTheHostNoChild) {
  const std::string tool = directory().WriteScript("tool", "echo x; exit 0");
  EXPECT_TRUE(testing::InACopy([&] {
    machine().RunToEnd(tool, {});
    machine().FirstOutput(tool, {});
    machine().StartProgram(tool, {});
    machine().RunToEnd(directory() / "missing", {});
    machine().HostReachability("127.0.0.1");
    return testing::Children().empty() && waitpid(-1, nullptr, __WALL) == -1;
  }));
}

/// Even a host that adopts its programs gets no zombie of one that it waited
/// for.
TEST_F(Running, LeavesNoZombieOfAToolThatItWaitedFor) {
  machine().RunToEnd(directory().WriteScript("tool", "exit 0"), {});
  const std::string data = directory().Write("data", "");
  machine().RunToEnd(data, {});
  machine().FirstOutput(data, {});
  machine().StartProgram(data, {});
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

volatile sig_atomic_t handled = 0;

/// They wait until the tool has ended, and then are handled by the host: never
/// in a process that shares the host's memory.
TEST_F(Running, KeepsTheHostsSignalsForTheHost) {
  struct sigaction action = {};
  action.sa_handler = [](int) { handled = handled + 1; };
  sigaction(SIGUSR1, &action, nullptr);
  const std::string tool = directory().WriteScript(
      "tool", "kill -USR1 $PPID; kill -USR1 " + std::to_string(getpid()) +
                  "; echo out; exit 5");
  EXPECT_EQ(machine().RunToEnd(tool, {}), 5);
  EXPECT_EQ(handled, 1);
  EXPECT_EQ(machine().FirstOutput(tool, {}), "out\n");
}

TEST_F(Running, LeavesTheHostsSignalMaskAndErrnoAsTheyWere) {
  sigset_t usr1;
  sigset_t after;
  sigemptyset(&usr1);
  sigaddset(&usr1, SIGUSR1);
  const testing::SignalMask mask(usr1);
  errno = EDOM;
  machine().RunToEnd(directory() / "missing", {});
  EXPECT_EQ(errno, EDOM);
  sigprocmask(SIG_SETMASK, nullptr, &after);
  for (int signal = 1; signal < NSIG; ++signal) {
    EXPECT_EQ(sigismember(&after, signal), sigismember(&usr1, signal));
  }
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

/// A tool's status and output need no descriptor of the host's. Not through the
/// machine: the sanitizer's look at an object with virtual functions takes a
/// descriptor itself.
TEST_F(Running, NeedsADescriptorForHelpersAlone) {
  const std::string tool = directory().WriteScript("tool", "echo x; exit 4");
  directory().Write("domain.conf", "[Preferences]\nKey=0\n");
  const HelperAnswers helpers(VELMO_TEST_HELPERS);
  EXPECT_TRUE(testing::InACopy([&] {
    FillDescriptorTable(0);
    return RunToEnd(tool, {}) == 4 && FirstOutput(tool, {}) == "x\n" &&
           !helpers.HostReachability("127.0.0.1") &&
           !ReadPreferenceIn(directory().path(), "domain", "Key");
  }));
}

TEST_F(Running, AsksNoHelperWithRoomForHalfAPipe) {
  const HelperAnswers helpers(VELMO_TEST_HELPERS);
  EXPECT_TRUE(testing::InACopy([&] {
    FillDescriptorTable(1);
    const bool no_answer = !helpers.HostReachability("127.0.0.1");
    // Nothing was leaked: the one place is still free.
    return no_answer && open("/dev/null", O_RDONLY) == 63;
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

// What such a host prints meanwhile must not reach the pipe of a helper's
// answer.
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

struct RefusalRow {
  const char* sentence;
  std::function<bool(const testing::TemporaryDirectory&)> refused;
};

class Refusal : public ::testing::TestWithParam<RefusalRow> {};

std::size_t OpenDescriptors() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

TEST_P(Refusal, TakesNoDescriptorOfTheHosts) {
  const testing::TemporaryDirectory directory;
  const std::size_t before = OpenDescriptors();
  EXPECT_TRUE(GetParam().refused(directory));
  EXPECT_EQ(OpenDescriptors(), before);
  testing::EndChildren();
}

using Directory = testing::TemporaryDirectory;

/// A helper in a shell script.
bool HelperFails(const Directory& directory, const std::string& lines) {
  directory.WriteScript("velmohelp-fetch", lines);
  return !HelperAnswers(directory.path())
              .FetchText("http://a/", std::chrono::milliseconds(50));
}

bool PreferenceFails(const Directory& directory) {
  return !ReadPreferenceIn(directory.path(), "domain", "Key");
}

INSTANTIATE_TEST_SUITE_P(
    Programs, Refusal,
    ::testing::Values(
        RefusalRow{"a tool that is missing",
                   [](const Directory& directory) {
                     return !RunToEnd(directory / "x", {}) &&
                            !FirstOutput(directory / "x", {});
                   }},
        RefusalRow{"a tool that is a directory",
                   [](const Directory& directory) {
                     return !RunToEnd(directory.path(), {}) &&
                            !FirstOutput(directory.path(), {});
                   }},
        RefusalRow{"a path with a NUL",
                   [](const Directory&) {
                     return !FirstOutput(std::string("/bin/true\0x", 11), {});
                   }},
        RefusalRow{"a viewer that is missing",
                   [](const Directory& directory) {
                     return StartDetached(directory / "x", {}) ==
                            StartResult::kFailed;
                   }},
        RefusalRow{"a helper that is missing",
                   [](const Directory& directory) {
                     return !HelperAnswers(directory / "x")
                                 .FetchText("a", std::chrono::seconds(10));
                   }},
        RefusalRow{"a helper that is not a program",
                   [](const Directory& directory) {
                     directory.Write("velmohelp-fetch", "text");
                     return !HelperAnswers(directory.path())
                                 .FetchText("a", std::chrono::seconds(10));
                   }},
        RefusalRow{"a helper that fails",
                   [](const Directory& directory) {
                     return HelperFails(directory, "exit 1");
                   }},
        RefusalRow{"a helper that is late",
                   [](const Directory& directory) {
                     return HelperFails(directory, "exec sleep 1000");
                   }},
        RefusalRow{"a helper that sends nonsense",
                   [](const Directory& directory) {
                     return HelperFails(directory, "exec yes");
                   }},
        RefusalRow{"a question with a NUL",
                   [](const Directory& directory) {
                     return !HelperAnswers(directory.path())
                                 .FetchText(std::string("a\0b", 3),
                                            std::chrono::seconds(10));
                   }}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Preferences, Refusal,
    ::testing::Values(
        RefusalRow{"a preference file that is missing", &PreferenceFails},
        RefusalRow{"a preference file that is a directory",
                   [](const Directory& directory) {
                     directory.MakeDirectory("domain.conf");
                     return PreferenceFails(directory);
                   }},
        RefusalRow{"a preference file that is a pipe",
                   [](const Directory& directory) {
                     mkfifo((directory / "domain.conf").c_str(), S_IRWXU);
                     return PreferenceFails(directory);
                   }},
        RefusalRow{"a preference file that is a device",
                   [](const Directory& directory) {
                     std::filesystem::create_symlink("/dev/null",
                                                     directory / "domain.conf");
                     return PreferenceFails(directory);
                   }},
        RefusalRow{"a preference file without the key",
                   [](const Directory& directory) {
                     directory.Write("domain.conf", "[Preferences]\n");
                     return PreferenceFails(directory);
                   }}),
    testing::SentenceOf());

TEST_F(Running, LeavesTheHostsDescriptorsAsTheyWere) {
  const std::string tool = directory().WriteScript("tool", "echo out");
  const std::size_t before = OpenDescriptors();
  machine().RunToEnd(tool, {});
  machine().FirstOutput(tool, {});
  machine().StartProgram(tool, {});
  machine().HostReachability("127.0.0.1");
  EXPECT_EQ(OpenDescriptors(), before);
}

/// Another thread of the host may start a program at any moment.
TEST(APipe, IsCloseOnExecAtBothEnds) {
  const auto pipe = MakePipe();
  ASSERT_TRUE(pipe);
  EXPECT_EQ(fcntl(pipe->read_end.get(), F_GETFD), FD_CLOEXEC);
  EXPECT_EQ(fcntl(pipe->write_end.get(), F_GETFD), FD_CLOEXEC);
}

TEST(APipe, IsCloseOnExecInAHostWithoutStandardStreams) {
  EXPECT_TRUE(testing::InACopy([] {
    close(0);
    close(1);
    close(2);
    const auto pipe = MakePipe();
    return pipe && fcntl(pipe->read_end.get(), F_GETFD) == FD_CLOEXEC &&
           fcntl(pipe->write_end.get(), F_GETFD) == FD_CLOEXEC;
  }));
}

TEST_F(Running, OpensFilesCloseOnExec) {
  const UniqueFd file = OpenRegularFile(directory().Write("file", "text"));
  ASSERT_TRUE(file);
  EXPECT_EQ(fcntl(file.get(), F_GETFD), FD_CLOEXEC);
}

}  // namespace
}  // namespace velmohelp
