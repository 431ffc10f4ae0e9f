/* Ways through the network, as the kernel has them. No packet is sent. */
#ifndef PLATFORM_LINUX_HELPERS_ROUTE_H_
#define PLATFORM_LINUX_HELPERS_ROUTE_H_

#include <netdb.h>

enum velmo_route {
  VELMO_NO_ROUTE,
  /* There is one once its interface has made a connection. */
  VELMO_ROUTE_ON_CONNECTION,
  VELMO_ROUTE
};

/* The way to one address. */
enum velmo_route velmo_route_to(const struct addrinfo* address);

/* True when the way to an address leaves through an interface that waits for a
 * connection (operational state "dormant", RFC 2863); false also when the
 * kernel does not tell. */
int velmo_leaves_through_dormant(const struct sockaddr* address);

#endif /* PLATFORM_LINUX_HELPERS_ROUTE_H_ */
