// What the library makes of a helper's answer, and of none.
#include "platform/linux/helper_answers.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/linux/browser_command.h"
#include "tests/support/children.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using std::chrono::milliseconds;
using namespace std::string_literals;

constexpr Timeouts kShort{milliseconds(50), milliseconds(50)};
constexpr std::chrono::minutes kLong(1);

/// A folder of helpers that a test writes.
class Helpers : public ::testing::Test {
 protected:
  ~Helpers() override { testing::EndChildren(); }

  HelperAnswers Answers(Timeouts timeouts = {}) {
    return HelperAnswers(directory_.path(), timeouts);
  }
  void Write(const std::string& name, const std::string& lines) {
    directory_.WriteScript("velmohelp-" + name, lines);
  }
  void WriteAnswer(const std::string& name, const std::string& answer) {
    const std::string file = directory_.Write(
        name + " answer", std::to_string(answer.size()) + ":" + answer + ",");
    Write(name, "cat '" + file + "'");
  }
  const testing::TemporaryDirectory& directory() const { return directory_; }

 private:
  testing::TemporaryDirectory directory_;
};

TEST_F(Helpers, ThatAreMissingCannot) {
  EXPECT_FALSE(Answers().HostReachability("localhost"));
  EXPECT_FALSE(Answers().FetchText("http://localhost/", kLong));
  EXPECT_FALSE(Answers().OpenInBrowser("http://localhost/"));
}

struct ReachRow {
  const char* sentence;
  const char* lines;
  bool answered = false;
  bool reachable = false;
  bool connection_required = false;
};

class ReachHelper : public Helpers,
                    public ::testing::WithParamInterface<ReachRow> {};

TEST_P(ReachHelper, IsBelievedWhenItsAnswerIsComplete) {
  Write("reach", GetParam().lines);
  const auto answer = Answers().HostReachability("a host");
  ASSERT_EQ(answer.has_value(), GetParam().answered);
  if (!answer) return;
  EXPECT_EQ(answer->reachable, GetParam().reachable);
  EXPECT_EQ(answer->connection_required, GetParam().connection_required);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReachHelper,
    ::testing::Values(
        ReachRow{.sentence = "reachable",
                 .lines = "printf 9:reachable,",
                 .answered = true,
                 .reachable = true},
        ReachRow{.sentence = "reachable on connection",
                 .lines = "printf '19:connection required,'",
                 .answered = true,
                 .reachable = true,
                 .connection_required = true},
        ReachRow{.sentence = "unreachable",
                 .lines = "printf 11:unreachable,",
                 .answered = true},
        ReachRow{.sentence = "an answer in pieces",
                 .lines = "printf 9; printf :reach; printf able; printf ,",
                 .answered = true,
                 .reachable = true},
        ReachRow{.sentence = "the host as its one argument",
                 .lines = "test \"$#$1\" = '1a host' && printf 9:reachable,",
                 .answered = true,
                 .reachable = true},
        ReachRow{.sentence = "an answer and something after it",
                 .lines = "printf 9:reachable,x",
                 .answered = true,
                 .reachable = true},
        ReachRow{.sentence = "an empty answer", .lines = "printf 0:,"},
        ReachRow{.sentence = "no answer", .lines = "exit 0"},
        ReachRow{.sentence = "half an answer", .lines = "printf 9:re"},
        ReachRow{.sentence = "an answer without its end",
                 .lines = "printf 9:reachable"},
        ReachRow{.sentence = "an unknown word", .lines = "printf 3:yes,"},
        ReachRow{.sentence = "a line of text", .lines = "echo reachable"},
        ReachRow{.sentence = "a crash", .lines = "kill -SEGV $$"},
        ReachRow{.sentence = "endless output", .lines = "exec yes"}),
    testing::SentenceOf());

TEST_F(Helpers, AreNotAskedAboutHalfAText) {
  Write("reach", "printf 9:reachable,");
  Write("fetch", "printf 4:text,");
  EXPECT_FALSE(Answers().HostReachability("localhost\0x"s));
  EXPECT_FALSE(Answers().FetchText("http://localhost/\0x"s, kLong));
}

TEST_F(Helpers, SayThatThereIsAText) {
  Write("fetch", "test \"$1\" = 'http://a/?b c' && printf 4:text,");
  EXPECT_TRUE(Answers().FetchText("http://a/?b c", kLong));
  EXPECT_FALSE(Answers().FetchText("http://a/", kLong));
}

/// The library keeps no writing end of its own open.
TEST_F(Helpers, AreNotWaitedForAfterTheirEnd) {
  using std::chrono::hours;
  Write("reach", "exit 1");
  const Timeouts endless{hours(1), hours(1)};
  EXPECT_FALSE(Answers(endless).HostReachability("localhost"));
}

/// How the only helper ended.
int EndingSignal() {
  EXPECT_EQ(testing::Children().size(), 1U);
  siginfo_t end = {};
  waitid(P_ALL, 0, &end, WEXITED | WNOWAIT);
  return end.si_code == CLD_KILLED ? end.si_status : 0;
}

TEST_F(Helpers, AreEndedWhenTheyAreLate) {
  Write("reach", "exec sleep 1000");
  EXPECT_FALSE(Answers(kShort).HostReachability("localhost"));
  EXPECT_EQ(EndingSignal(), SIGALRM);
}

TEST_F(Helpers, AreEndedAtTheTimeoutOfTheirRequest) {
  Write("fetch", "exec sleep 1000");
  EXPECT_FALSE(Answers().FetchText("http://localhost/", milliseconds(50)));
  EXPECT_EQ(EndingSignal(), SIGALRM);
}

TEST_F(Helpers, MayLiveOnAfterTheirAnswer) {
  const std::string gate = directory() / "gate";
  ASSERT_EQ(mkfifo(gate.c_str(), S_IRWXU), 0);
  Write("fetch", "printf 4:text,; exec cat '" + gate + "'");
  EXPECT_TRUE(Answers().FetchText("http://localhost/", kLong));
  EXPECT_EQ(testing::Children().size(), 1U);
}

TEST_F(Helpers, AnswerWhileSignalsInterruptTheHost) {
  struct sigaction action = {};
  action.sa_handler = [](int) {};  // no SA_RESTART
  sigaction(SIGUSR1, &action, nullptr);
  const std::string interrupt = "kill -USR1 " + std::to_string(getpid());
  Write("reach", interrupt + "; printf 9:reach; " + interrupt + "; " +
                     interrupt + "; printf able,");
  EXPECT_TRUE(Answers().HostReachability("localhost"));
}

TEST_F(Helpers, KeepTheHostWaitingForSecondsOnly) {
  using std::chrono::seconds;
  EXPECT_EQ(Timeouts().reach, seconds(2));
  EXPECT_EQ(Timeouts().browser, seconds(10));
}

/// What a desktop's registry says about itself is not for the host's terminal.
TEST_F(Helpers, SayNothingOnTheHostsStandardError) {
  Write("reach", "printf 9:reachable,; readlink /proc/$$/fd/2 > '" +
                     (directory() / "errors") + "'");
  EXPECT_TRUE(Answers().HostReachability("localhost"));
  testing::AwaitEndOfChildren();
  EXPECT_EQ(testing::FileText(directory() / "errors"), "/dev/null\n");
}

/// Nobody waits for the end of the file, which a process that the host forks
/// meanwhile would keep away.
TEST_F(Helpers, AreNotWaitedForAfterTheirAnswer) {
  Write("fetch", "printf 4:text,; exec sleep 1000");
  EXPECT_TRUE(Answers().FetchText("http://localhost/", kLong));
}

TEST_F(Helpers, HaveTheBrowserStarted) {
  const std::string browser =
      directory().WriteScript("a browser", "printf '%s|' \"$@\" > \"$1\"");
  const std::string report = directory() / "report";
  WriteAnswer("browser",
              "start\0003\0"s + browser + '\0' + report + "\0two words\0"s);
  EXPECT_TRUE(Answers().OpenInBrowser("http://localhost/"));
  testing::AwaitEndOfChildren();
  EXPECT_EQ(testing::FileText(report), report + "|two words|");
}

TEST_F(Helpers, FailWhenTheBrowserCannotBeStarted) {
  WriteAnswer("browser", "start\0001\0/nonexistent\0"s);
  EXPECT_FALSE(Answers().OpenInBrowser("http://localhost/"));
}

TEST_F(Helpers, OpenTheBrowserThemselves) {
  WriteAnswer("browser", "opened\0"s);
  EXPECT_TRUE(Answers().OpenInBrowser("http://localhost/"));
}

struct CommandRow {
  const char* sentence;
  std::string answer;
  std::optional<Arguments> command;
};

class BrowserAnswer : public ::testing::TestWithParam<CommandRow> {};

TEST_P(BrowserAnswer, IsACommandLine) {
  EXPECT_EQ(ParseBrowserAnswer(GetParam().answer), GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BrowserAnswer,
    ::testing::Values(
        CommandRow{"opened already", "opened\0"s, Arguments{}},
        CommandRow{"a program alone", "start\0001\0/b\0"s, Arguments{"/b"}},
        CommandRow{"empty words are words", "start\0003\0/b\0\0x y\0"s,
                   Arguments{"/b", "", "x y"}},
        CommandRow{"nothing", "", {}},
        CommandRow{"a word is missing", "start\0003\0/b\0x\0"s, {}},
        CommandRow{"the last word is cut", "start\0002\0/b\0x"s, {}},
        CommandRow{"a word too many", "start\0001\0/b\0x\0"s, {}},
        CommandRow{"no program", "start\0000\0"s, {}},
        CommandRow{"a relative program", "start\0001\0b\0"s, {}},
        CommandRow{"an empty program", "start\0001\0\0"s, {}},
        CommandRow{"opened and more", "opened\0x\0"s, {}},
        CommandRow{"another word", "run\0001\0/b\0"s, {}}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
