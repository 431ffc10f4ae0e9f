// What a started program sees of its host.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <functional>

#include "platform/linux/linux_machine.h"
#include "platform/linux/programs.h"
#include "tests/support/children.h"
#include "tests/support/sentence.h"
#include "tests/support/signal_mask.h"
#include "tests/support/start_facts.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::Facts;
using testing::FileText;
using ::testing::IsEmpty;
using ::testing::Not;

class StartedProgram : public ::testing::Test {
 protected:
  /// Runs the probe to its end and returns its report.
  std::string Run(Arguments arguments = {}) {
    arguments.insert(arguments.begin(), directory_ / "report");
    EXPECT_EQ(machine_.RunToEnd(VELMO_TEST_PROBE, arguments), 0);
    return FileText(directory_ / "report");
  }

  /// Starts the probe as a viewer. It reports through a pipe, whose end comes
  /// when it has said all.
  std::string Start() {
    const std::string pipe = directory_ / "pipe";
    mkfifo(pipe.c_str(), S_IRWXU);
    EXPECT_TRUE(machine_.StartProgram(VELMO_TEST_PROBE, {pipe}));
    return FileText(pipe);
  }

  const testing::TemporaryDirectory& directory() const { return directory_; }

 private:
  testing::TemporaryDirectory directory_;
  LinuxMachine machine_{VELMO_TEST_HELPERS};
};

TEST_F(StartedProgram, GetsItsArgumentsAsTheyStand) {
  const auto arguments = Facts(
      Run({"", "two words", "\"'", "$(exit)", "-x", "\xC3\xA4"}), "argument");
  ASSERT_EQ(arguments.size(), 8U);
  EXPECT_EQ(arguments[0], VELMO_TEST_PROBE);
  EXPECT_EQ(std::vector(arguments.begin() + 2, arguments.end()),
            std::vector<std::string>(
                {"", "two words", "\"'", "$(exit)", "-x", "\xC3\xA4"}));
}

TEST_F(StartedProgram, GetsNoDescriptorBeyondTheStandardStreams) {
  const int secret = open("/dev/null", O_RDONLY);
  ASSERT_GT(secret, 2);
  EXPECT_THAT(Facts(Run(), "descriptor"), ElementsAre("0", "1", "2"));
  EXPECT_THAT(Facts(Start(), "descriptor"), ElementsAre("0", "1", "2"));
  close(secret);
}

/// One that reads its input would take what the host is sent; one that keeps
/// its output open would keep the reader of the host's output waiting.
TEST_F(StartedProgram, HasNoInputAndOutputOfItsHost) {
  const std::string errors = directory() / "errors";
  EXPECT_TRUE(testing::InACopy([&] {
    dup2(open(errors.c_str(), O_WRONLY | O_CREAT, S_IRWXU), STDERR_FILENO);
    const std::vector<std::string> expected = {"/dev/null", "/dev/null",
                                               errors};
    return Facts(Run(), "stream") == expected &&
           Facts(Start(), "stream") == expected;
  }));
}

TEST_F(StartedProgram, PrintsItsAnswerAndHasNoInput) {
  const auto streams = FirstOutput(
      "/bin/sh",
      {"-c", "echo $(readlink /proc/$$/fd/0) $(readlink /proc/$$/fd/1)"});
  ASSERT_TRUE(streams);
  EXPECT_THAT(*streams, ::testing::StartsWith("/dev/null pipe:"));
}

TEST_F(StartedProgram, HasNoErrorStreamThatItsHostKeepsFromPrograms) {
  EXPECT_TRUE(testing::InACopy([&] {
    fcntl(STDERR_FILENO, F_SETFD, FD_CLOEXEC);
    return Facts(Run(), "stream") == std::vector<std::string>(3, "/dev/null");
  }));
}

TEST_F(StartedProgram, HasAllItsSignals) {
  sigset_t blocked;
  sigfillset(&blocked);
  const testing::SignalMask mask(blocked);
  std::signal(SIGINT, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
  for (const std::string& report : {Run(), Start()}) {
    EXPECT_THAT(Facts(report, "blocked"), IsEmpty());
    EXPECT_THAT(Facts(report, "ignored"), IsEmpty());
  }
}

TEST_F(StartedProgram, HasASessionOfItsOwnOnlyWhenItIsLeftRunning) {
  EXPECT_THAT(Start(), ::testing::HasSubstr("own session"));
  EXPECT_THAT(Run(), ::testing::HasSubstr("host's session"));
}

/// What a setting becomes when the system is asked for the normal one; a system
/// that does not let this user go back keeps it.
struct SchedulingRow {
  const char* sentence;
  const char* fact;
  /// False where the system refuses it.
  std::function<bool()> change;
  std::function<void()> normalise;
};

class Scheduling : public StartedProgram,
                   public ::testing::WithParamInterface<SchedulingRow> {};

std::string OwnFact(const char* name) {
  char* none[] = {nullptr};
  return Facts(testing::StartFacts(0, none), name).at(0);
}

TEST_P(Scheduling, IsNotTheHosts) {
  if (!testing::InACopy(GetParam().change)) {
    GTEST_SKIP() << "this system refuses it to this user";
  }
  EXPECT_TRUE(testing::InACopy([&] {
    GetParam().change();
    const auto facts = Facts(Run(), GetParam().fact);
    GetParam().normalise();
    return facts.at(0) == OwnFact(GetParam().fact);
  }));
}

bool SetPolicy(int policy, int priority) {
  const sched_param parameters = {priority};
  return sched_setscheduler(0, policy, &parameters) == 0;
}

bool SetNice(int value) { return setpriority(PRIO_PROCESS, 0, value) == 0; }

bool Pin(int first, int last) {
  cpu_set_t processors;
  CPU_ZERO(&processors);
  for (int i = first; i <= last; ++i) CPU_SET(i, &processors);
  return sched_setaffinity(0, sizeof processors, &processors) == 0;
}

void SetNormalPolicy() { SetPolicy(SCHED_OTHER, 0); }
void SetNormalNice() { SetNice(0); }
void Unpin() { Pin(0, CPU_SETSIZE - 1); }

INSTANTIATE_TEST_SUITE_P(
    Rows, Scheduling,
    ::testing::Values(
        SchedulingRow{.sentence = "a real-time host",
                      .fact = "policy",
                      .change = [] { return SetPolicy(SCHED_FIFO, 1); },
                      .normalise = &SetNormalPolicy},
        SchedulingRow{.sentence = "a batch host",
                      .fact = "policy",
                      .change = [] { return SetPolicy(SCHED_BATCH, 0); },
                      .normalise = &SetNormalPolicy},
        SchedulingRow{.sentence = "a nice host",
                      .fact = "nice",
                      .change = [] { return SetNice(7); },
                      .normalise = &SetNormalNice},
        SchedulingRow{.sentence = "an urgent host",
                      .fact = "nice",
                      .change = [] { return SetNice(-7); },
                      .normalise = &SetNormalNice},
        SchedulingRow{.sentence = "a host pinned to a processor",
                      .fact = "processors",
                      .change = [] { return Pin(0, 0); },
                      .normalise = &Unpin}),
    testing::SentenceOf());

struct IdRow {
  const char* sentence;
  id_t real;
  id_t effective;
  id_t saved;
  /// Of the program: its real, effective, saved and file system id.
  const char* expected;
};

class UserIds : public ::testing::TestWithParam<IdRow> {};

/// From the ids of root, as exec sets them for a set-user-ID program.
TEST_P(UserIds, OfTheHostAreNotGivenAway) {
  if (geteuid() != 0) GTEST_SKIP() << "only root changes its ids freely";
  EXPECT_TRUE(testing::InACopy([] {
    const auto& [sentence, real, effective, saved, expected] = GetParam();
    setresgid(real, effective, saved);
    setresuid(real, effective, saved);
    const std::string ids(expected);
    return FirstOutput("/bin/grep",
                       {"-E", "^(Uid|Gid):", "/proc/self/status"}) ==
           "Uid:" + ids + "\nGid:" + ids + "\n";
  }));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UserIds,
    ::testing::Values(IdRow{.sentence = "an ordinary host",
                            .real = 7,
                            .effective = 7,
                            .saved = 7,
                            .expected = "\t7\t7\t7\t7"},
                      IdRow{.sentence = "a set-user-ID host of root's",
                            .real = 7,
                            .effective = 0,
                            .saved = 0,
                            .expected = "\t7\t7\t7\t7"},
                      IdRow{.sentence = "a set-user-ID host of another user's",
                            .real = 7,
                            .effective = 8,
                            .saved = 8,
                            .expected = "\t7\t7\t7\t7"},
                      IdRow{.sentence = "a set-user-ID host back at its user",
                            .real = 7,
                            .effective = 7,
                            .saved = 0,
                            .expected = "\t7\t7\t7\t7"},
                      IdRow{.sentence = "a host of root's at work for a user",
                            .real = 0,
                            .effective = 7,
                            .saved = 0,
                            .expected = "\t7\t7\t7\t7"},
                      IdRow{.sentence = "root itself",
                            .real = 0,
                            .effective = 0,
                            .saved = 0,
                            .expected = "\t0\t0\t0\t0"}),
    testing::SentenceOf());

/// A user's primary group may be root's, as in containers that choose the user
/// at random. The group of a set-group-ID host is not that user's.
TEST(GroupId, OfASetGroupIdHostIsNotGivenAwayToAUserOfRootsGroup) {
  if (geteuid() != 0) GTEST_SKIP() << "only root changes its ids freely";
  EXPECT_TRUE(testing::InACopy([] {
    setresgid(0, 8, 8);
    setresuid(7, 7, 7);
    return FirstOutput("/bin/grep", {"^Gid:", "/proc/self/status"}) ==
           "Gid:\t0\t0\t0\t0\n";
  }));
}

/// In a user namespace without a map, and in sandboxes, a process may set no
/// ids, not even those that it has.
TEST(Ids, ThatAreTheUsersAlreadyNeedNotBeSet) {
  const auto enter = [] { return unshare(CLONE_NEWUSER) == 0; };
  if (!testing::InACopy(enter)) {
    GTEST_SKIP() << "this system lets the test make no user namespace";
  }
  EXPECT_TRUE(testing::InACopy(
      [&] { return enter() && RunToEnd("/bin/true", {}) == 0; }));
}

TEST_F(StartedProgram, HasStandardStreamsWhereItsHostHasNone) {
  EXPECT_TRUE(testing::InACopy([&] {
    close(0);
    close(1);
    close(2);
    return Facts(Run(), "stream") == std::vector<std::string>(3, "/dev/null");
  }));
}

/// A program whose output cannot be written may end by an error.
TEST_F(StartedProgram, CanWriteToStandardStreamsThatItsHostLacks) {
  EXPECT_TRUE(testing::InACopy([&] {
    close(0);
    close(1);
    close(2);
    return RunToEnd("/bin/sh", {"-c", "echo out && echo error >&2 && cat"}) ==
           0;
  }));
}

struct LoaderPathRow {
  const char* sentence;
  const char* path;
  const char* saved;
  const char* expected;
};

class LoaderPath : public StartedProgram,
                   public ::testing::WithParamInterface<LoaderPathRow> {};

void SetOrUnset(const char* name, const char* value) {
  if (value == nullptr) {
    unsetenv(name);
  } else {
    setenv(name, value, 1);
  }
}

TEST_P(LoaderPath, IsTheOneFromBeforeTheBundle) {
  SetOrUnset("LD_LIBRARY_PATH", GetParam().path);
  SetOrUnset("LD_LIBRARY_PATH_ORIG", GetParam().saved);
  const auto environment = Facts(Run(), "environment");
  const std::string name = "LD_LIBRARY_PATH=";
  if (GetParam().expected == nullptr) {
    EXPECT_THAT(environment, Not(Contains(::testing::StartsWith(name))));
  } else {
    EXPECT_THAT(environment, Contains(name + GetParam().expected).Times(1));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LoaderPath,
    ::testing::Values(
        LoaderPathRow{"a saved path comes back", "/bundle", "/own", "/own"},
        LoaderPathRow{"an empty saved path means no path", "/bundle", "",
                      nullptr},
        LoaderPathRow{"a path that nobody saved stays", "/own", nullptr,
                      "/own"},
        LoaderPathRow{"a saved path comes back where no path is set", nullptr,
                      "/own", "/own"},
        LoaderPathRow{"no path stays no path", nullptr, nullptr, nullptr}),
    testing::SentenceOf());

TEST_F(StartedProgram, HasTheHostsEnvironmentOtherwise) {
  setenv("VELMO_TEST", "a value", 1);
  EXPECT_THAT(Facts(Run(), "environment"), Contains("VELMO_TEST=a value"));
}

TEST_F(StartedProgram, StartsFromAnEmptyEnvironment) {
  EXPECT_TRUE(testing::InACopy([&] {
    clearenv();
    return Facts(Run(), "environment").empty();
  }));
}

}  // namespace
}  // namespace velmohelp
