// The exported functions of <velmohelp/online.h> on this machine.
#include <velmohelp/online.h>

#include "exports/state.h"
#include "platform/locations.h"
#include "tests/support/on_scripted_machine.h"

namespace velmohelp::testing {
namespace {

class OnlineExports : public OnScriptedMachine {
 protected:
  void SetPreference(PreferenceScope scope, const char* value) {
    machine.SetPreference("com.velmo.VelmoOnlineHelp", "VelmoOnlineDefault",
                          scope, value);
  }
  void MakeReachable() {
    machine.SetReachability(kOnlineHelpHost, {.reachable = true});
  }
};

TEST_F(OnlineExports, KeepTheNetworkStatusInTheState) {
  MakeReachable();
  GetNetworkStatus();
  EXPECT_TRUE(sIsOnline);
  SetPreference(PreferenceScope::kCurrentUserAnyHost, "0");
  GetNetworkStatus();
  EXPECT_FALSE(sIsOnline);
}

TEST_F(OnlineExports, ReadTheAdministratorsPreference) {
  SetPreference(PreferenceScope::kAnyUserCurrentHost, "0");
  EXPECT_EQ(ITEMInternal::GetNexletPreference(ITEMInternal::kAdminPreference),
            "0");
  EXPECT_FALSE(ITEMInternal::GetAdminOnlinePref());
  EXPECT_TRUE(ITEMInternal::GetUserOnlinePref());
  EXPECT_FALSE(ITEMInternal::GetOnlineDefault());
}

TEST_F(OnlineExports, ReadTheUsersPreference) {
  SetPreference(PreferenceScope::kCurrentUserAnyHost, "0");
  EXPECT_EQ(ITEMInternal::GetNexletPreference(ITEMInternal::kUserPreference),
            "0");
  EXPECT_TRUE(ITEMInternal::GetAdminOnlinePref());
  EXPECT_FALSE(ITEMInternal::GetUserOnlinePref());
  EXPECT_FALSE(ITEMInternal::GetOnlineDefault());
}

TEST_F(OnlineExports, ProbeTheHostOfAUrl) {
  EXPECT_FALSE(ITEMInternal::GetOnlineStatus("http://h/x"));
  machine.SetReachability("h", {.reachable = true});
  EXPECT_TRUE(ITEMInternal::GetOnlineStatus("http://h/x"));
}

}  // namespace
}  // namespace velmohelp::testing
