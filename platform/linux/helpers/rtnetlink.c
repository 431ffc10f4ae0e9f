/* Two questions to the kernel over rtnetlink(7): which interface a route leaves
 * through, and which state the interface is in. */
#include <linux/if.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <netinet/in.h>
#include <stddef.h>
#include <stdint.h>
#include <sys/socket.h>
#include <unistd.h>

#include "platform/linux/helpers/route.h"

/* Room for the description of an interface, the longest reply. */
enum { REPLY_SIZE = 32768 };

union reply {
  struct nlmsghdr header;
  char bytes[REPLY_SIZE];
};

struct route_question {
  struct nlmsghdr header;
  struct rtmsg route;
  struct rtattr destination;
  union {
    struct in_addr in;
    struct in6_addr in6;
  } address;
};

struct link_question {
  struct nlmsghdr header;
  struct ifinfomsg link;
};

/* Sends a question and reads the reply to it; true when it is of the wanted
 * type. */
static int ask(const struct nlmsghdr* question, uint16_t wanted,
               union reply* reply) {
  const int kernel = socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
  if (kernel < 0) return 0;
  ssize_t got = -1;
  if (send(kernel, question, question->nlmsg_len, 0) > 0) {
    got = recv(kernel, reply, sizeof *reply, 0);
  }
  close(kernel);
  if (got <= 0 || !NLMSG_OK(&reply->header, (size_t)got)) return 0;
  return reply->header.nlmsg_type == wanted;
}

/* The value of an attribute after a reply's fixed part; NULL when there is none
 * of at least this size. */
static const void* attribute(const union reply* reply, size_t fixed_part,
                             unsigned short type, size_t size) {
  const size_t start = NLMSG_SPACE(fixed_part);
  if (reply->header.nlmsg_len < start) return NULL;
  size_t left = reply->header.nlmsg_len - start;
  const struct rtattr* at = (const struct rtattr*)(reply->bytes + start);
  for (; RTA_OK(at, left); at = RTA_NEXT(at, left)) {
    if (at->rta_type == type && RTA_PAYLOAD(at) >= size) return RTA_DATA(at);
  }
  return NULL;
}

static void set_lengths(struct route_question* question, size_t address_size) {
  question->header.nlmsg_len =
      (uint32_t)(offsetof(struct route_question, address) + address_size);
  question->destination.rta_len = (unsigned short)RTA_LENGTH(address_size);
  question->route.rtm_dst_len = (unsigned char)(address_size * 8);
}

static void set_address(struct route_question* question,
                        const struct sockaddr* address) {
  if (address->sa_family == AF_INET) {
    question->address.in = ((const struct sockaddr_in*)address)->sin_addr;
    set_lengths(question, sizeof question->address.in);
  } else {
    question->address.in6 = ((const struct sockaddr_in6*)address)->sin6_addr;
    set_lengths(question, sizeof question->address.in6);
  }
}

/* The interface that a link-local address names; 0 for any other address. */
static int own_interface(const struct sockaddr* address) {
  if (address->sa_family != AF_INET6) return 0;
  return (int)((const struct sockaddr_in6*)address)->sin6_scope_id;
}

/* The number of the interface to an IPv4 or IPv6 address, 0 for none. */
static int interface_to(const struct sockaddr* address) {
  struct route_question question = {0};
  union reply reply;
  if (own_interface(address) != 0) return own_interface(address);
  question.header.nlmsg_type = RTM_GETROUTE;
  question.header.nlmsg_flags = NLM_F_REQUEST;
  question.route.rtm_family = (unsigned char)address->sa_family;
  question.destination.rta_type = RTA_DST;
  set_address(&question, address);
  if (!ask(&question.header, RTM_NEWROUTE, &reply)) return 0;
  const int* interface =
      attribute(&reply, sizeof(struct rtmsg), RTA_OIF, sizeof *interface);
  return interface == NULL ? 0 : *interface;
}

static int is_dormant(int interface) {
  struct link_question question = {0};
  union reply reply;
  question.header.nlmsg_type = RTM_GETLINK;
  question.header.nlmsg_flags = NLM_F_REQUEST;
  question.header.nlmsg_len = sizeof question;
  question.link.ifi_index = interface;
  if (!ask(&question.header, RTM_NEWLINK, &reply)) return 0;
  const uint8_t* state = attribute(&reply, sizeof(struct ifinfomsg),
                                   IFLA_OPERSTATE, sizeof *state);
  return state != NULL && *state == IF_OPER_DORMANT;
}

int velmo_leaves_through_dormant(const struct sockaddr* address) {
  const int interface = interface_to(address);
  return interface != 0 && is_dormant(interface);
}
