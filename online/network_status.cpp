#include "online/network_status.h"

#include <velmohelp_locations.h>

namespace velmohelp {

bool NetworkStatus(Machine& machine) {
  if (!OnlineDefault(machine)) return false;
  return OnlineStatus(machine, std::string("http://") + kOnlineHelpHost);
}

}  // namespace velmohelp
