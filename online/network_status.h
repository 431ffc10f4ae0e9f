// Whether online help may be used: policy first, then reachability.
#ifndef ONLINE_NETWORK_STATUS_H_
#define ONLINE_NETWORK_STATUS_H_

#include <velmohelp/online.h>

#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// True when online help is allowed and its server reachable. The network is
/// not asked when it is not allowed.
bool NetworkStatus(Machine& machine);

/// See ITEMInternal::GetOnlineDefault.
bool IsOnlineHelpAllowed(Machine& machine);

/// See ITEMInternal::GetAdminOnlinePref and GetUserOnlinePref.
bool IsOnlineHelpAllowed(Machine& machine,
                         ITEMInternal::NexletPreference which);

/// See ITEMInternal::GetNexletPreference.
std::string OnlinePreferenceText(Machine& machine,
                                 ITEMInternal::NexletPreference which);

/// See ITEMInternal::GetOnlineStatus.
bool IsReachable(Machine& machine, const std::string& url);

}  // namespace velmohelp

#endif  // ONLINE_NETWORK_STATUS_H_
