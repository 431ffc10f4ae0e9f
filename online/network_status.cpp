#include "online/network_status.h"

#include "platform/locations.h"

namespace velmohelp {

bool NetworkStatus(Machine& machine) {
  return IsOnlineHelpAllowed(machine) &&
         IsReachable(machine, std::string("http://") + kOnlineHelpHost);
}

}  // namespace velmohelp
