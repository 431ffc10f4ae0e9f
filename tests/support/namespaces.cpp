#include "tests/support/namespaces.h"

#include <linux/capability.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

#include "tests/support/children.h"

namespace velmohelp::testing {
namespace {

bool Write(const char* path, const std::string& text) {
  return static_cast<bool>(std::ofstream(path) << text << std::flush);
}

/// One's own number means oneself, as outside.
std::string OnlyMyself(unsigned number) {
  const std::string text = std::to_string(number);
  return text + " " + text + " 1";
}

/// A program that an ordinary user starts has no rights, unless they are in the
/// ambient set (capabilities(7)).
bool PassRightsOn() {
  __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct sets[_LINUX_CAPABILITY_U32S_3] = {};
  if (syscall(SYS_capget, &header, sets) != 0) return false;
  sets[0].inheritable |= CAP_TO_MASK(CAP_NET_ADMIN);
  return syscall(SYS_capset, &header, sets) == 0 &&
         prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_RAISE, CAP_NET_ADMIN, 0, 0) == 0;
}

}  // namespace

bool EnterNamespaces(int namespaces) {
  const unsigned user = geteuid();
  const unsigned group = getegid();
  if (unshare(namespaces) == 0) return true;
  return unshare(CLONE_NEWUSER | namespaces) == 0 &&
         Write("/proc/self/setgroups", "deny") &&
         Write("/proc/self/uid_map", OnlyMyself(user)) &&
         Write("/proc/self/gid_map", OnlyMyself(group));
}

bool RunIp(const std::string& arguments) {
  return InACopy([&] {
    return PassRightsOn() && std::system(("ip " + arguments).c_str()) == 0;
  });
}

}  // namespace velmohelp::testing
