#include <velmohelp/online.h>

#include "client/state.h"
#include "exports/this_machine.h"
#include "online/network_status.h"

using velmohelp::ThisMachine;

void GetNetworkStatus() {
  velmohelp::sIsOnline = velmohelp::NetworkStatus(ThisMachine());
}

namespace ITEMInternal {

bool GetOnlineDefault() { return velmohelp::OnlineDefault(ThisMachine()); }

bool GetAdminOnlinePref() {
  return velmohelp::OnlinePreference(ThisMachine(), kAdminPreference);
}

bool GetUserOnlinePref() {
  return velmohelp::OnlinePreference(ThisMachine(), kUserPreference);
}

bool GetOnlineStatus(const std::string& url) {
  return velmohelp::OnlineStatus(ThisMachine(), url);
}

std::string GetNexletPreference(NexletPreference which) {
  return velmohelp::NexletPreferenceText(ThisMachine(), which);
}

}  // namespace ITEMInternal
