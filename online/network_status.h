// Whether online help may be used: policy first, then reachability.
#ifndef ONLINE_NETWORK_STATUS_H_
#define ONLINE_NETWORK_STATUS_H_

#include <velmohelp/online.h>

#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// See ::GetNetworkStatus; true when online help may be used.
bool NetworkStatus(Machine& machine);

/// See ITEMInternal::GetOnlineDefault, GetAdminOnlinePref, GetUserOnlinePref.
bool OnlineDefault(Machine& machine);
bool OnlinePreference(Machine& machine, ITEMInternal::NexletPreference which);

/// See ITEMInternal::GetNexletPreference.
std::string NexletPreferenceText(Machine& machine,
                                 ITEMInternal::NexletPreference which);

/// See ITEMInternal::GetOnlineStatus.
bool OnlineStatus(Machine& machine, const std::string& url);

}  // namespace velmohelp

#endif  // ONLINE_NETWORK_STATUS_H_
