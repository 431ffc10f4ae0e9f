#include <velmohelp/online.h>
#include <velmohelp_locations.h>

#include "tests/support/on_scripted_machine.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kAsksAdmin[] =
    "Preference admin com.velmo.VelmoOnlineHelp VelmoOnlineDefault";
constexpr char kAsksUser[] =
    "Preference user com.velmo.VelmoOnlineHelp VelmoOnlineDefault";
const std::string kAsksHost =
    std::string("HostReachability ") + kOnlineHelpHost;

class NetworkStatus : public OnScriptedMachine {
 protected:
  void SetPreference(PreferenceScope scope, const char* value) {
    machine.SetPreference("com.velmo.VelmoOnlineHelp", "VelmoOnlineDefault",
                          scope, value);
  }
  void MakeReachable() {
    machine.SetReachability(kOnlineHelpHost, {.reachable = true});
  }
};

TEST_F(NetworkStatus, AsksPreferencesThenTheServersHost) {
  MakeReachable();
  GetNetworkStatus();
  EXPECT_TRUE(sIsOnline);
  EXPECT_THAT(machine.Questions(),
              ElementsAre(kAsksAdmin, kAsksUser, kAsksHost));
}

TEST_F(NetworkStatus, MakesNoProbeWhenTheAdministratorSaysNo) {
  MakeReachable();
  SetPreference(PreferenceScope::kAnyUserCurrentHost, "0");
  SetPreference(PreferenceScope::kCurrentUserAnyHost, "1");
  sIsOnline = true;
  GetNetworkStatus();
  EXPECT_FALSE(sIsOnline);
  EXPECT_THAT(machine.Questions(), ElementsAre(kAsksAdmin));
}

TEST_F(NetworkStatus, MakesNoProbeWhenTheUserSaysNo) {
  MakeReachable();
  SetPreference(PreferenceScope::kCurrentUserAnyHost, "0");
  sIsOnline = true;
  GetNetworkStatus();
  EXPECT_FALSE(sIsOnline);
  EXPECT_THAT(machine.Questions(), ElementsAre(kAsksAdmin, kAsksUser));
}

TEST_F(NetworkStatus, ClearsAStaleAnswerWhenTheProbeFails) {
  sIsOnline = true;
  GetNetworkStatus();
  EXPECT_FALSE(sIsOnline);
}

TEST_F(NetworkStatus, IsProbedAfreshAtEachCall) {
  GetNetworkStatus();
  MakeReachable();
  GetNetworkStatus();
  EXPECT_TRUE(sIsOnline);
  machine.SetReachability(kOnlineHelpHost,
                          {.reachable = true, .connection_required = true});
  GetNetworkStatus();
  EXPECT_FALSE(sIsOnline);
  EXPECT_EQ(machine.Questions().size(), 9);
}

}  // namespace
}  // namespace velmohelp::testing
