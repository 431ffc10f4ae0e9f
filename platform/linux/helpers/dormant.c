/* Two questions to the kernel's routing socket (rtnetlink(7)): through which
 * interface, and in which state is it. */
#include <linux/if.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <netinet/in.h>
#include <stddef.h>
#include <stdint.h>
#include <string.h>
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
  char attributes[RTA_SPACE(sizeof(struct in6_addr))];
};

struct link_question {
  struct nlmsghdr header;
  struct ifinfomsg link;
};

/* Sends a question and reads the reply to it; the reply's length, 0 when it is
 * not of the wanted type. */
static size_t ask(const struct nlmsghdr* question, uint16_t wanted,
                  union reply* reply) {
  const int kernel = socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
  if (kernel < 0) return 0;
  ssize_t got = -1;
  if (send(kernel, question, question->nlmsg_len, 0) > 0) {
    got = recv(kernel, reply, sizeof *reply, 0);
  }
  close(kernel);
  if (got <= 0 || !NLMSG_OK(&reply->header, (size_t)got)) return 0;
  return reply->header.nlmsg_type == wanted ? reply->header.nlmsg_len : 0;
}

/* Finds an attribute behind a reply's fixed part and copies its value; true
 * when it is there in that size. */
static int attribute(union reply* reply, size_t fixed_part, unsigned short type,
                     void* value, size_t size) {
  const size_t start = NLMSG_SPACE(fixed_part);
  if (reply->header.nlmsg_len < start) return 0;
  size_t left = reply->header.nlmsg_len - start;
  const struct rtattr* at = (const struct rtattr*)(reply->bytes + start);
  for (; RTA_OK(at, left); at = RTA_NEXT(at, left)) {
    if (at->rta_type == type && RTA_PAYLOAD(at) >= size) {
      memcpy(value, RTA_DATA(at), size);
      return 1;
    }
  }
  return 0;
}

static void set_destination(struct route_question* question, int family,
                            const void* address, size_t size) {
  struct rtattr* destination = (struct rtattr*)question->attributes;
  question->header.nlmsg_type = RTM_GETROUTE;
  question->header.nlmsg_flags = NLM_F_REQUEST;
  question->header.nlmsg_len =
      (uint32_t)(offsetof(struct route_question, attributes) + RTA_SPACE(size));
  question->route.rtm_family = (unsigned char)family;
  question->route.rtm_dst_len = (unsigned char)(size * 8);
  destination->rta_type = RTA_DST;
  destination->rta_len = (unsigned short)RTA_LENGTH(size);
  memcpy(RTA_DATA(destination), address, size);
}

/* The number of the interface to an address, 0 for none. */
static int interface_to(const struct sockaddr* address) {
  struct route_question question = {0};
  union reply reply;
  int interface = 0;
  if (address->sa_family == AF_INET) {
    const struct sockaddr_in* in = (const struct sockaddr_in*)address;
    set_destination(&question, AF_INET, &in->sin_addr, sizeof in->sin_addr);
  } else if (address->sa_family == AF_INET6) {
    const struct sockaddr_in6* in6 = (const struct sockaddr_in6*)address;
    if (in6->sin6_scope_id != 0) return (int)in6->sin6_scope_id;
    set_destination(&question, AF_INET6, &in6->sin6_addr,
                    sizeof in6->sin6_addr);
  } else {
    return 0;
  }
  if (ask(&question.header, RTM_NEWROUTE, &reply) == 0) return 0;
  if (!attribute(&reply, sizeof(struct rtmsg), RTA_OIF, &interface,
                 sizeof interface)) {
    return 0;
  }
  return interface;
}

static int is_dormant(int interface) {
  struct link_question question = {0};
  union reply reply;
  uint8_t state = 0;
  question.header.nlmsg_type = RTM_GETLINK;
  question.header.nlmsg_flags = NLM_F_REQUEST;
  question.header.nlmsg_len = sizeof question;
  question.link.ifi_index = interface;
  return ask(&question.header, RTM_NEWLINK, &reply) != 0 &&
         attribute(&reply, sizeof(struct ifinfomsg), IFLA_OPERSTATE, &state,
                   sizeof state) &&
         state == IF_OPER_DORMANT;
}

int velmo_leaves_through_dormant(const struct sockaddr* address) {
  const int interface = interface_to(address);
  return interface != 0 && is_dormant(interface);
}
