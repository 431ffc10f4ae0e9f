// Networks of every kind: whether the help server can be reached through them.
#include "tests/support/namespaces.h"
#include "tests/system/name_server.h"
#include "tests/system/own_machine_world.h"
#include "tests/system/worker_gate.h"

namespace velmohelp::testing {
namespace {

constexpr char kOnline[] = "0";
constexpr char kOffline[] = "1";

std::function<bool()> NameServer(NameAnswer answer) {
  return [=] { return RaiseLoopback() && StartNameServer(answer); };
}

/// One end of a cable has the way to 192.0.2.0/24, and more settings.
std::function<bool()> Cable(const std::string& settings) {
  return [=] {
    return RaiseLoopback() && RunIp("link add v0 type veth peer name v1") &&
           RunIp("link set v1 up") && RunIp("link set v0 " + settings) &&
           RunIp("addr add 192.0.2.1/24 dev v0");
  };
}

bool LeaveIpv6Alone() {
  return RaiseLoopback() && RunIp("-4 addr del 127.0.0.1/8 dev lo") &&
         !FileText("/proc/net/if_inet6").empty();
}

struct Network {
  const char* sentence;
  /// /etc/hosts and /etc/resolv.conf.
  const char* hosts;
  const char* resolver;
  std::function<bool()> preparation;
  const char* status;
};

void PrintTo(const Network& row, std::ostream* out) { *out << row.sentence; }

class ANetwork : public OwnMachine,
                 public ::testing::WithParamInterface<Network> {
 protected:
  void SetUp() override {
    if (!InACopy([&] {
          return EnterOwnMachine(Folder()) && GetParam().preparation();
        })) {
      GTEST_SKIP() << "this system lets the test make no such network";
    }
  }
};

TEST_P(ANetwork, MeansThatTheMachineIs) {
  Put("hosts", GetParam().hosts);
  Put("resolv.conf", GetParam().resolver);
  world_.SetUserPreference("0");
  Start(GetParam().preparation);
  world_.SetUserPreference("1");
  EXPECT_EQ(world_.Ask({"status"}), GetParam().status);
}

constexpr char kHome[] = "127.0.0.1 help.velmo.com\n";
constexpr char kFar[] = "192.0.2.7 help.velmo.com\n";
constexpr char kSixAlone[] = "::1 help.velmo.com\n";
constexpr char kHere[] = "nameserver 127.0.0.1\n";

INSTANTIATE_TEST_SUITE_P(
    Rows, ANetwork,
    ::testing::Values(
        Network{"online with a server at home", kHome, "", &RaiseLoopback,
                kOnline},
        Network{"online with a name server that knows it", "", kHere,
                NameServer(NameAnswer::kThisMachine), kOnline},
        Network{"online with a way to the server", kFar, "", Cable("up"),
                kOnline},
        Network{"online with IPv6 alone", kSixAlone, "", &LeaveIpv6Alone,
                kOnline},
        Network{"online with one of two addresses",
                "2001:db8::7 help.velmo.com\n127.0.0.1 help.velmo.com\n", "",
                &RaiseLoopback, kOnline},
        Network{"offline without an interface", kHome, "", [] { return true; },
                kOffline},
        Network{"offline where nobody knows the server", "", "", &RaiseLoopback,
                kOffline},
        Network{"offline with a name server that fails", "", kHere,
                NameServer(NameAnswer::kFailure), kOffline},
        Network{"offline with a name server that knows no such name", "", kHere,
                NameServer(NameAnswer::kNoSuchName), kOffline},
        Network{"offline with a name server that refuses", "", kHere,
                NameServer(NameAnswer::kRefusal), kOffline},
        Network{"offline with no name server where one should be", "", kHere,
                &RaiseLoopback, kOffline},
        Network{"offline without a way to the server", kFar, "", &RaiseLoopback,
                kOffline},
        Network{"offline with IPv4 where the server has IPv6",
                "2001:db8::7 help.velmo.com\n", "", Cable("up"), kOffline},
        Network{"offline over an interface that waits for a connection", kFar,
                "", Cable("mode dormant up"), kOffline}),
    SentenceOf());

/// A machine whose name servers are silent. The name service asks them for
/// longer than a test may take.
class ADeadNameServer : public OwnMachine {
 protected:
  void Begin() {
    std::string resolver = "options timeout:30 attempts:5\n";
    for (int i = 0; i < 3; ++i) resolver += kHere;
    Put("resolv.conf", resolver);
    world_.SetUserPreference("0");
    Start(NameServer(NameAnswer::kNothing));
    world_.SetUserPreference("1");
  }

  /// The person at the keyboard waits for seconds, not for the minutes that the
  /// name service takes here: its helper has been ended.
  void ExpectNoLookup() {
    for (const pid_t program : world_.Programs()) {
      // Returns only when the helper that asked has been ended.
      if (ProgramOf(program).ends_with("velmohelp-reach")) AwaitEnd(program);
    }
  }
};

TEST_F(ADeadNameServer, MeansThatTheMachineIsOffline) {
  Put("hosts", "127.0.0.1 localhost\n");
  Begin();
  EXPECT_EQ(world_.Ask({"status"}), kOffline);
  ExpectNoLookup();
}

/// A window's loop runs while the lookup has not even begun. The time limit is
/// the library's own.
TEST_F(ADeadNameServer, LeavesAHostThatDoesNotWaitFree) {
  // The helper program has this build's places, where localhost is the server.
  std::filesystem::copy_file(VELMO_TEST_LIBRARY, world_.start().plug_in,
                             std::filesystem::copy_options::overwrite_existing);
  Put("hosts", "");
  world_.Write("{installed}/intro.html", "<p>");
  const WorkerGate gate(world_);
  Begin();
  const std::string descriptor = world_.Ask({"start display", "intro"});
  EXPECT_EQ(world_.Ask({"version"}), "66816");
  EXPECT_EQ(world_.Ask({"is readable", descriptor}), "no");
  gate.Open();
  EXPECT_EQ(world_.Ask({"await", descriptor}), "readable");
  EXPECT_EQ(world_.Ask({"finish", descriptor}), "0");
  ExpectNoLookup();
  EXPECT_EQ(world_.Started(),
            world_.Expanded(Viewer("HELP", "\"{url:installed}/intro.html\"")));
}

/// Help that is on the machine is shown all the same.
TEST_F(OwnMachine, ShowsItsOwnHelpWithoutAnInterface) {
  InstallIntroPage();
  Start([] { return true; });
  EXPECT_EQ(world_.Ask(Display("intro")), "0");
  ExpectTheInstalledIntroPageInTheViewer();
}

}  // namespace
}  // namespace velmohelp::testing
