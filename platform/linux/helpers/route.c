#include "platform/linux/helpers/route.h"

#include <sys/socket.h>
#include <unistd.h>

/* Connecting a datagram socket makes the kernel look for a route and choose a
 * source address, and does nothing else. */
static int has_route(const struct addrinfo* address) {
  const int probe = socket(address->ai_family, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  if (probe < 0) return 0;
  const int connected =
      connect(probe, address->ai_addr, address->ai_addrlen) == 0;
  close(probe);
  return connected;
}

enum velmo_route velmo_route_to(const struct addrinfo* address) {
  if (!has_route(address)) return VELMO_NO_ROUTE;
  return velmo_leaves_through_dormant(address->ai_addr)
             ? VELMO_ROUTE_ON_CONNECTION
             : VELMO_ROUTE;
}
