#include <velmohelp/online.h>

#include "exports/this_client.h"
#include "online/network_status.h"

using velmohelp::ThisClient;
using velmohelp::ThisMachine;

void GetNetworkStatus() { velmohelp::RefreshOnlineStatus(ThisClient()); }

namespace ITEMInternal {

bool GetOnlineDefault() {
  return velmohelp::IsOnlineHelpAllowed(ThisMachine());
}

bool GetAdminOnlinePref() {
  return velmohelp::IsOnlineHelpAllowed(ThisMachine(), kAdminPreference);
}

bool GetUserOnlinePref() {
  return velmohelp::IsOnlineHelpAllowed(ThisMachine(), kUserPreference);
}

bool GetOnlineStatus(const std::string& url) {
  return velmohelp::IsReachable(ThisMachine(), url);
}

std::string GetNexletPreference(NexletPreference which) {
  return velmohelp::OnlinePreferenceText(ThisMachine(), which);
}

}  // namespace ITEMInternal
