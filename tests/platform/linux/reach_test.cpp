// Reachability, with the helper of this build; where this system lets the test
// make one, in a network of its own.
#include <gtest/gtest.h>
#include <sched.h>

#include "platform/linux/linux_machine.h"
#include "tests/support/children.h"
#include "tests/support/namespaces.h"

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

TEST_F(Reach, FindsTheWayToItsOwnMachine) {
  EXPECT_TRUE(IsReachable("localhost"));
  EXPECT_TRUE(IsReachable("127.0.0.1"));
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

TEST_F(ReachInItsOwnNetwork, KnowsNothingOfANameThatIsNone) {
  for (const std::string& name :
       {std::string(), std::string("a b"), std::string("-h"),
        std::string("host.invalid"), std::string(254, 'a')}) {
    EXPECT_TRUE(testing::InACopy([&] {
      return EnterEmptyNetwork() && !Ask(name).has_value();
    })) << name;
  }
}

TEST_F(ReachInItsOwnNetwork, FindsNoWayWithoutInterfaces) {
  EXPECT_TRUE(testing::InACopy([&] {
    return EnterEmptyNetwork() && IsUnreachable("192.0.2.1") &&
           IsUnreachable("2001:db8::1");
  }));
}

/// Two interfaces, one at each end of a cable; the first has the way to
/// 192.0.2.0/24 and 2001:db8::/64, and waits for a connection.
bool EnterDormantNetwork() {
  return EnterEmptyNetwork() && RunIp("link add v0 type veth peer name v1") &&
         RunIp("link set v1 up") && RunIp("link set v0 mode dormant up") &&
         RunIp("addr add 192.0.2.1/24 dev v0") &&
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

TEST_F(ReachOverADormantInterface, NeedsNoneOnceItIsUp) {
  EXPECT_TRUE(testing::InACopy([&] {
    return EnterDormantNetwork() && RunIp("link set v0 mode default") &&
           RunIp("link set v0 state up") && IsReachable("192.0.2.7") &&
           IsReachable("2001:db8::7");
  }));
}

}  // namespace
}  // namespace velmohelp
