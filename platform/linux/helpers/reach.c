/* velmohelp-reach: whether there is a route to a host. See protocol.h. Plain C
 * with the C library alone, because it is started at every request. */
#include <netdb.h>
#include <string.h>
#include <sys/socket.h>

#include "platform/linux/answer.h"
#include "platform/linux/helpers/route.h"
#include "platform/linux/helpers/time_limit.h"
#include "platform/linux/protocol.h"

/* A dead name server must not freeze the host for longer, at each request. */
enum { TIME_LIMIT_SECONDS = 2 };

/* The best route to any of the addresses. */
static enum velmo_route best_route(const struct addrinfo* addresses) {
  enum velmo_route best = VELMO_NO_ROUTE;
  const struct addrinfo* at = addresses;
  for (; at != NULL && best != VELMO_ROUTE; at = at->ai_next) {
    const enum velmo_route route = velmo_route_to(at);
    if (route > best) best = route;
  }
  return best;
}

static const char* word_for(enum velmo_route route) {
  switch (route) {
    case VELMO_ROUTE:
      return VELMO_REACHABLE;
    case VELMO_ROUTE_ON_CONNECTION:
      return VELMO_REACHABLE_ON_CONNECTION;
    default:
      return VELMO_UNREACHABLE;
  }
}

/* "" when the name is unknown. */
static const char* answer_about(const char* host) {
  /* The port of the request that may follow. Routes do not depend on it. */
  static const char port[] = "80";
  const struct addrinfo wanted = {.ai_socktype = SOCK_DGRAM,
                                  .ai_flags = AI_NUMERICSERV};
  struct addrinfo* addresses = NULL;
  /* The C library takes this one for the loopback address. */
  if (strcmp(host, "*") == 0) return "";
  if (getaddrinfo(host, port, &wanted, &addresses) != 0) return "";
  const char* word = word_for(best_route(addresses));
  freeaddrinfo(addresses);
  return word;
}

/* A line for a person. */
static int say_why(const char* host) {
  const struct addrinfo wanted = {.ai_socktype = SOCK_DGRAM};
  struct addrinfo* addresses = NULL;
  const int error = getaddrinfo(host, NULL, &wanted, &addresses);
  const char* why = "";
  if (error != 0) {
    why = gai_strerror(error);
  } else {
    if (best_route(addresses) == VELMO_NO_ROUTE) why = "no route to it";
    freeaddrinfo(addresses);
  }
  return velmo_write_all(why, strlen(why)) && velmo_write_all("\n", 1) ? 0 : 1;
}

int main(int argc, char* argv[]) {
  velmo_limit_time(TIME_LIMIT_SECONDS);
  if (argc == 3 && strcmp(argv[1], VELMO_SAY_WHY) == 0) return say_why(argv[2]);
  const char* answer = argc == 2 ? answer_about(argv[1]) : "";
  return velmo_give_answer(answer, strlen(answer)) ? 0 : 1;
}
