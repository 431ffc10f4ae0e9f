#include <velmohelp/online.h>

#include "exports/guarded.h"
#include "exports/this_client.h"
#include "online/network_status.h"

using velmohelp::ThisClient;
using velmohelp::ThisMachine;
using velmohelp::WithState;

void GetNetworkStatus() {
  return WithState([&] { velmohelp::RefreshOnlineStatus(ThisClient()); });
}

namespace ITEMInternal {

bool GetOnlineDefault() {
  return WithState(
      false, [&] { return velmohelp::IsOnlineHelpAllowed(ThisMachine()); });
}

bool GetAdminOnlinePref() {
  return WithState(false, [&] {
    return velmohelp::IsOnlineHelpAllowed(ThisMachine(), kAdminPreference);
  });
}

bool GetUserOnlinePref() {
  return WithState(false, [&] {
    return velmohelp::IsOnlineHelpAllowed(ThisMachine(), kUserPreference);
  });
}

bool GetOnlineStatus(const std::string& url) {
  return WithState(false,
                   [&] { return velmohelp::IsReachable(ThisMachine(), url); });
}

std::string GetNexletPreference(NexletPreference which) {
  return WithState("", [&] {
    return velmohelp::OnlinePreferenceText(ThisMachine(), which);
  });
}

}  // namespace ITEMInternal
