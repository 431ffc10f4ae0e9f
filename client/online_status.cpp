#include "client/client.h"
#include "online/network_status.h"

namespace velmohelp {

/// Cleared first: what was true at the last probe must not outlive one that
/// runs out of memory.
void RefreshOnlineStatus(const Client& client) {
  client.state.is_online = false;
  client.state.is_online = NetworkStatus(client.machine);
}

OnlineStatusReturnCode OnlineStatusOf(const Client& client) {
  if (client.state.init_status != kInitSuccess) {
    return kOnlineStatusNotInitialized;
  }
  RefreshOnlineStatus(client);
  return client.state.is_online ? kOnlineStatusOnline : kOnlineStatusOffline;
}

}  // namespace velmohelp
