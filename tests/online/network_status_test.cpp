#include "online/network_status.h"

#include "platform/locations.h"
#include "tests/support/scripted_test.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kAsksAdmin[] =
    "Preference admin com.velmo.VelmoOnlineHelp VelmoOnlineDefault";
constexpr char kAsksUser[] =
    "Preference user com.velmo.VelmoOnlineHelp VelmoOnlineDefault";
const std::string kAsksHost =
    std::string("HostReachability ") + kOnlineHelpHost;

class OnlineHelp : public ScriptedTest {
 protected:
  void SetPreference(PreferenceScope scope, const char* value) {
    machine.SetPreference("com.velmo.VelmoOnlineHelp", "VelmoOnlineDefault",
                          scope, value);
  }
  void MakeReachable() {
    machine.SetReachability(kOnlineHelpHost, {.reachable = true});
  }
};

TEST_F(OnlineHelp, AsksPreferencesThenTheServersHost) {
  MakeReachable();
  EXPECT_TRUE(NetworkStatus(machine));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(kAsksAdmin, kAsksUser, kAsksHost));
}

TEST_F(OnlineHelp, IsNotProbedWhenTheAdministratorSaysNo) {
  MakeReachable();
  SetPreference(PreferenceScope::kAnyUserCurrentHost, "0");
  SetPreference(PreferenceScope::kCurrentUserAnyHost, "1");
  EXPECT_FALSE(NetworkStatus(machine));
  EXPECT_THAT(machine.Questions(), ElementsAre(kAsksAdmin));
}

TEST_F(OnlineHelp, IsNotProbedWhenTheUserSaysNo) {
  MakeReachable();
  SetPreference(PreferenceScope::kCurrentUserAnyHost, "0");
  EXPECT_FALSE(NetworkStatus(machine));
  EXPECT_THAT(machine.Questions(), ElementsAre(kAsksAdmin, kAsksUser));
}

TEST_F(OnlineHelp, IsProbedAgainAtEachCall) {
  EXPECT_FALSE(NetworkStatus(machine));
  MakeReachable();
  EXPECT_TRUE(NetworkStatus(machine));
  machine.SetReachability(kOnlineHelpHost,
                          {.reachable = true, .connection_required = true});
  EXPECT_FALSE(NetworkStatus(machine));
  EXPECT_EQ(machine.Questions().size(), 9);
}

}  // namespace
}  // namespace velmohelp::testing
