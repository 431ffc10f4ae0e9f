// What a started program sees of its host.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "platform/linux/linux_machine.h"
#include "tests/support/children.h"
#include "tests/support/sentence.h"
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
    EXPECT_EQ(mkfifo(pipe.c_str(), S_IRWXU), 0);
    EXPECT_TRUE(machine_.StartProgram(VELMO_TEST_PROBE, {pipe}));
    return FileText(pipe);
  }

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

TEST_F(StartedProgram, GetsNoDescriptorByWayOfTheRunner) {
  std::signal(SIGCHLD, SIG_IGN);
  const std::string report = Run();
  std::signal(SIGCHLD, SIG_DFL);
  EXPECT_THAT(Facts(report, "descriptor"), ElementsAre("0", "1", "2"));
}

TEST_F(StartedProgram, HasAllItsSignals) {
  sigset_t blocked;
  sigfillset(&blocked);
  sigprocmask(SIG_BLOCK, &blocked, nullptr);
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

TEST_F(StartedProgram, HasStandardStreamsWhereItsHostHasNone) {
  const bool reported = testing::InACopy([&] {
    close(0);
    close(1);
    close(2);
    return Facts(Run(), "descriptor") ==
           std::vector<std::string>({"0", "1", "2"});
  });
  EXPECT_TRUE(reported);
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
        LoaderPathRow{"an empty saved path means none", "/bundle", "", nullptr},
        LoaderPathRow{"a path that nobody saved stays", "/own", nullptr,
                      "/own"},
        LoaderPathRow{"a saved path comes back where there is none", nullptr,
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
