/* velmohelp-reach: whether packets to a host have a way. See protocol.h. Plain
 * C and nothing but the C library, because it is started at every request. */
#include <netdb.h>
#include <string.h>
#include <sys/socket.h>
#include <unistd.h>

#include "platform/linux/helpers/protocol.h"
#include "platform/linux/helpers/route.h"

/* The best way to any of the addresses; one that needs no connection ends the
 * search. */
static enum velmo_route best_route(const struct addrinfo* addresses) {
  enum velmo_route best = VELMO_NO_ROUTE;
  const struct addrinfo* at = addresses;
  for (; at != NULL && best != VELMO_ROUTE; at = at->ai_next) {
    const enum velmo_route route = velmo_route_to(at);
    if (route > best) best = route;
  }
  return best;
}

static const char* answer_for(enum velmo_route route) {
  switch (route) {
    case VELMO_ROUTE:
      return VELMO_REACHABLE;
    case VELMO_ROUTE_ON_CONNECTION:
      return VELMO_REACHABLE_ON_CONNECTION;
    default:
      return VELMO_UNREACHABLE;
  }
}

int main(int argc, char* argv[]) {
  /* The port of the request that may follow; it has no part in the choice. */
  static const char port[] = "80";
  const struct addrinfo wanted = {.ai_socktype = SOCK_DGRAM,
                                  .ai_flags = AI_NUMERICSERV};
  struct addrinfo* addresses = NULL;
  if (argc != 2 || getaddrinfo(argv[1], port, &wanted, &addresses) != 0) {
    return 1;
  }
  const char* answer = answer_for(best_route(addresses));
  freeaddrinfo(addresses);
  /* Closed, so that the library need not wait for the end of this program. */
  return write(STDOUT_FILENO, answer, strlen(answer)) > 0 &&
                 close(STDOUT_FILENO) == 0
             ? 0
             : 1;
}
