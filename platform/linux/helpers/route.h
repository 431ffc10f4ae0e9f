/* Routes, as the kernel knows them. No packet is sent. */
#ifndef PLATFORM_LINUX_HELPERS_ROUTE_H_
#define PLATFORM_LINUX_HELPERS_ROUTE_H_

#include <netdb.h>

enum velmo_route {
  VELMO_NO_ROUTE,
  /* Its interface has to make a connection first (dial-up, VPN on demand). */
  VELMO_ROUTE_ON_CONNECTION,
  VELMO_ROUTE
};

/* The route to one address. */
enum velmo_route velmo_route_to(const struct addrinfo* address);

/* True when the route to an address leaves through an interface that waits for
 * a connection (operational state "dormant", RFC 2863); false also when the
 * kernel does not tell. */
int velmo_leaves_through_dormant(const struct sockaddr* address);

#endif /* PLATFORM_LINUX_HELPERS_ROUTE_H_ */
