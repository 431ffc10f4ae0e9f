#include "platform/linux/helpers/route.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

/* 0.0.0.0 and ::, also as an IPv4-mapped address: what a blocking name server
 * returns for a name that it hides. The kernel would take them for this
 * machine. */
static int is_unspecified(const struct sockaddr* address) {
  if (address->sa_family == AF_INET) {
    const struct sockaddr_in* in = (const struct sockaddr_in*)address;
    return in->sin_addr.s_addr == htonl(INADDR_ANY);
  }
  const struct in6_addr* in6 =
      &((const struct sockaddr_in6*)address)->sin6_addr;
  return IN6_IS_ADDR_UNSPECIFIED(in6) ||
         (IN6_IS_ADDR_V4MAPPED(in6) && in6->s6_addr32[3] == htonl(INADDR_ANY));
}

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
  if (is_unspecified(address->ai_addr) || !has_route(address)) {
    return VELMO_NO_ROUTE;
  }
  return velmo_leaves_through_dormant(address->ai_addr)
             ? VELMO_ROUTE_ON_CONNECTION
             : VELMO_ROUTE;
}
