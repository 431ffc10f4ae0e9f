#include "online/network_status.h"
#include "tests/support/scripted_test.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Row {
  const char* sentence;
  std::string url;
  /// The question asked; "" for none.
  std::string question;
};

class ProbedUrl : public ScriptedTest,
                  public ::testing::WithParamInterface<Row> {};

TEST_P(ProbedUrl, AsksForItsHost) {
  machine.SetReachability("h", {.reachable = true});
  const bool is_reachable = IsReachable(machine, GetParam().url);
  if (GetParam().question.empty()) {
    EXPECT_THAT(machine.Questions(), IsEmpty());
  } else {
    EXPECT_THAT(machine.Questions(), ElementsAre(GetParam().question));
  }
  EXPECT_EQ(is_reachable, GetParam().question == "HostReachability h");
}

const std::string kAsks = "HostReachability h";

const Row kHosts[] = {
    {"a host alone", "http://h", kAsks},
    {"a host before a path", "http://h/x:y@z", kAsks},
    {"a host before a query", "http://h?x", kAsks},
    {"a host before a fragment", "http://h#x", kAsks},
    {"a host before a port", "http://h:80/", kAsks},
    {"a host before an empty port", "http://h:", kAsks},
    {"a host after a user", "http://u@h/", kAsks},
    {"a host after a user and a password", "http://u:p@h:1/", kAsks},
    {"a host of any scheme", "x-y+z.1://h", kAsks},
    {"a host without a scheme", "//h/x", kAsks},
    {"an escaped host", "http://%68/", kAsks},
    {"an IPv6 host", "http://[::1]/", "HostReachability ::1"},
    {"an IPv6 host before a port", "http://u@[fe80::1]:80/",
     "HostReachability fe80::1"},
    {"an IPv6 host with a zone", "http://[fe80::1%25en0]",
     "HostReachability fe80::1%en0"},
    {"a host with an escaped letter beyond ASCII", "http://%C3%A4.de",
     "HostReachability \xC3\xA4.de"},
    {"a host of 254 bytes", "http://" + std::string(254, 'a'),
     "HostReachability " + std::string(254, 'a')},
    {"a URL up to its first zero byte", "http://h\0 x"s, kAsks},
};

const Row kNoHosts[] = {
    {"a host of 255 bytes", "http://" + std::string(255, 'a'),
     "HostReachability"},
    {"a host of megabytes", "http://" + std::string(8'000'000, 'a'),
     "HostReachability"},
    {"an empty host", "http:///x", "HostReachability"},
    {"an empty host before a port", "http://:80/", "HostReachability"},
    {"a file URL", "file:///x", "HostReachability"},
    {"a scheme without a host", "mailto:x@h", "HostReachability"},
    {"a path", "/x//h", "HostReachability"},
    {"a word", "h", "HostReachability"},
    {"a host that is not valid UTF-8 once unescaped", "http://%FF.de",
     "HostReachability"},
    {"a host with an escaped zero byte", "http://h%00.de", "HostReachability"},
};

const Row kNoUrls[] = {
    {"an empty text", "", ""},
    {"a text that is empty up to its zero byte", "\0http://h"s, ""},
    {"bytes that are not valid UTF-8", "http://h/\xFF", ""},
    {"a letter beyond ASCII", "http://h/\xC3\xA4", ""},
    {"a space", "http://h/ ", ""},
    {"a percent sign without digits", "http://h/%", ""},
    {"a percent sign with one digit", "http://h/%1", ""},
    {"a double quote", "\"http://h\"", ""},
};

INSTANTIATE_TEST_SUITE_P(WithAHost, ProbedUrl, ::testing::ValuesIn(kHosts),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(WithoutAHost, ProbedUrl, ::testing::ValuesIn(kNoHosts),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(NoUrl, ProbedUrl, ::testing::ValuesIn(kNoUrls),
                         SentenceOf());

class Answer : public ScriptedTest {
 protected:
  bool Status(Reachability answer) {
    machine.SetReachability("h", answer);
    return IsReachable(machine, "http://h");
  }
};

TEST_F(Answer, IsOnlineWhenTheHostIsReachable) {
  EXPECT_TRUE(Status({.reachable = true, .connection_required = false}));
}

TEST_F(Answer, IsOfflineWhenAConnectionWouldHaveToBeMadeFirst) {
  EXPECT_FALSE(Status({.reachable = true, .connection_required = true}));
  EXPECT_FALSE(Status({.reachable = false, .connection_required = true}));
}

TEST_F(Answer, IsOfflineWhenTheHostIsNotReachable) {
  EXPECT_FALSE(Status({.reachable = false, .connection_required = false}));
}

TEST_F(Answer, IsOfflineWhenTheMachineCannotTell) {
  EXPECT_FALSE(IsReachable(machine, "http://h"));
}

}  // namespace
}  // namespace velmohelp::testing
