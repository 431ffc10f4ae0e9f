// Reachability, with the helper of this build, in a network of the test's own
// where this system lets the test make one.
#include <gtest/gtest.h>
#include <sched.h>

#include "platform/linux/linux_machine.h"
#include "tests/support/children.h"
#include "tests/support/namespaces.h"
#include "tests/support/temporary_directory.h"
#include "tests/system/own_machine.h"

namespace velmohelp {
namespace {

using testing::RunIp;

/// Nothing is in it but a loopback interface that is down.
bool EnterEmptyNetwork() { return testing::EnterNamespaces(CLONE_NEWNET); }

class Reach : public ::testing::Test {
 protected:
  std::optional<Reachability> Ask(const std::string& host) {
    return machine_.HostReachability(host);
  }
  bool IsReachable(const std::string& host) {
    const auto answer = Ask(host);
    return answer && answer->reachable && !answer->connection_required;
  }
  bool NeedsConnection(const std::string& host) {
    const auto answer = Ask(host);
    return answer && answer->reachable && answer->connection_required;
  }
  bool IsUnreachable(const std::string& host) {
    const auto answer = Ask(host);
    return answer && !answer->reachable;
  }

 private:
  LinuxMachine machine_{VELMO_TEST_HELPERS};
};

TEST_F(Reach, HasARouteToItsOwnMachine) {
  EXPECT_TRUE(IsReachable("localhost"));
  EXPECT_TRUE(IsReachable("127.0.0.1"));
}

/// The kernel takes these for this machine.
TEST_F(Reach, HasNoRouteToASinkholedName) {
  for (const char* address : {"0.0.0.0", "0", "::", "::ffff:0.0.0.0"}) {
    EXPECT_TRUE(IsUnreachable(address)) << address;
  }
}

/// In a network of its own no name is asked of a server either.
class ReachInItsOwnNetwork : public Reach {
 protected:
  void SetUp() override {
    if (!testing::InACopy(&EnterEmptyNetwork)) {
      GTEST_SKIP() << "this system lets the test make no network";
    }
  }
};

TEST_F(ReachInItsOwnNetwork, CannotTellForWhatIsNotAName) {
  for (const std::string& name :
       {std::string(), std::string("a b"), std::string("-h"), std::string("*"),
        std::string("host.invalid"), std::string(254, 'a')}) {
    EXPECT_TRUE(testing::InACopy([&] {
      return EnterEmptyNetwork() && !Ask(name).has_value();
    })) << name;
  }
}

TEST_F(ReachInItsOwnNetwork, HasNoRouteWithoutInterfaces) {
  EXPECT_TRUE(testing::InACopy([&] {
    return EnterEmptyNetwork() && IsUnreachable("192.0.2.1") &&
           IsUnreachable("2001:db8::1");
  }));
}

/// Two interfaces, one at each end of a cable. The first has the route to
/// 192.0.2.0/24 and 2001:db8::/64, and waits for a connection; the second is up
/// and has the route to 198.51.100.0/24.
bool EnterDormantNetwork() {
  return EnterEmptyNetwork() && RunIp("link add v0 type veth peer name v1") &&
         RunIp("link set v1 up") && RunIp("link set v0 mode dormant up") &&
         RunIp("addr add 192.0.2.1/24 dev v0") &&
         RunIp("addr add 198.51.100.1/24 dev v1") &&
         RunIp("addr add 2001:db8::1/64 dev v0 nodad");
}

class ReachOverADormantInterface : public Reach {
 protected:
  void SetUp() override {
    if (!testing::InACopy(&EnterDormantNetwork)) {
      GTEST_SKIP() << "this system lets the test make no interfaces";
    }
  }
};

TEST_F(ReachOverADormantInterface, NeedsAConnection) {
  EXPECT_TRUE(testing::InACopy([&] {
    return EnterDormantNetwork() && NeedsConnection("192.0.2.7") &&
           NeedsConnection("2001:db8::7");
  }));
}

TEST_F(ReachOverADormantInterface, AsksTheInterfaceThatAnAddressNames) {
  EXPECT_TRUE(testing::InACopy([&] {
    return EnterDormantNetwork() && RunIp("addr add fe80::1/64 dev v0 nodad") &&
           RunIp("addr add fe80::2/64 dev v1 nodad") &&
           NeedsConnection("fe80::7%v0") && IsReachable("fe80::7%v1");
  }));
}

/// A host's table with names of two addresses, the dormant one first or last:
/// one that is plainly reachable is enough.
TEST_F(ReachOverADormantInterface, NeedsNoneWhenOneAddressIsReachable) {
  const testing::TemporaryDirectory directory;
  directory.MakeDirectory("Library");
  directory.MakeDirectory("velmo");
  directory.Write("hosts",
                  "192.0.2.7 first\n198.51.100.7 first\n"
                  "198.51.100.7 last\n192.0.2.7 last\n"
                  "192.0.2.7 sunk\n0.0.0.0 sunk\n");
  directory.Write("resolv.conf", "");
  const auto enter = [&] {
    return testing::EnterOwnFiles(directory.path()) && EnterDormantNetwork();
  };
  if (!testing::InACopy(enter)) {
    GTEST_SKIP() << "this system lets the test make no file system";
  }
  EXPECT_TRUE(
      testing::InACopy([&] { return enter() && IsReachable("first"); }));
  EXPECT_TRUE(testing::InACopy([&] { return enter() && IsReachable("last"); }));
  EXPECT_TRUE(
      testing::InACopy([&] { return enter() && NeedsConnection("sunk"); }));
}

TEST_F(ReachOverADormantInterface, NeedsNoneOnceItIsUp) {
  EXPECT_TRUE(testing::InACopy([&] {
    return EnterDormantNetwork() && RunIp("link set v0 mode default") &&
           RunIp("link set v0 state up") && IsReachable("192.0.2.7") &&
           IsReachable("2001:db8::7");
  }));
}

}  // namespace
}  // namespace velmohelp
