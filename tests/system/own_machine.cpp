#include "tests/system/own_machine.h"

#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>

#include "tests/support/namespaces.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;

bool Bind(const fs::path& from, const fs::path& to) {
  fs::create_directories(to);
  return mount(from.c_str(), to.c_str(), nullptr, MS_BIND | MS_REC, nullptr) ==
         0;
}

/// Everything that a folder of the system holds, below another name.
bool Adopt(const fs::path& entry, const fs::path& root) {
  const fs::path to = root / entry.filename();
  if (entry.filename() == "etc" || entry.filename() == "Library") return true;
  if (fs::is_symlink(entry)) fs::copy_symlink(entry, to);
  return fs::is_symlink(entry) || !fs::is_directory(entry) || Bind(entry, to);
}

/// Into the system's own folder nothing can be put: a folder of links to what
/// it holds takes its place.
bool MakeEtc(const fs::path& root, const fs::path& folder) {
  if (!Bind("/etc", root / ".etc")) return false;
  for (const char* name : {"velmo", "ssl"}) {
    const fs::path own = folder / name;
    if (fs::exists(own) && !Bind(own, root / "etc" / name)) return false;
  }
  for (const char* file : {"hosts", "resolv.conf"}) {
    fs::copy_file(folder / file, root / "etc" / file);
  }
  for (const auto& entry : fs::directory_iterator("/etc")) {
    const fs::path name = entry.path().filename();
    if (fs::exists(root / "etc" / name)) continue;
    fs::create_symlink("/.etc" / name, root / "etc" / name);
  }
  return true;
}

bool EnterRoot(const fs::path& folder) {
  const fs::path root = folder / "root";
  fs::create_directory(root);
  if (mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
      mount("none", root.c_str(), "tmpfs", 0, nullptr) != 0) {
    return false;
  }
  for (const auto& entry : fs::directory_iterator("/")) {
    if (!Adopt(entry.path(), root)) return false;
  }
  return Bind(folder / "Library", root / "Library") && MakeEtc(root, folder) &&
         chroot(root.c_str()) == 0 && chdir("/") == 0;
}

bool Enter(int namespaces, const std::string& folder) {
  try {
    return EnterNamespaces(namespaces) && EnterRoot(folder);
  } catch (const fs::filesystem_error&) {
    return false;
  }
}

}  // namespace

bool EnterOwnMachine(const std::string& folder) {
  return Enter(CLONE_NEWNS | CLONE_NEWNET, folder);
}

bool EnterOwnFiles(const std::string& folder) {
  return Enter(CLONE_NEWNS, folder);
}

bool RaiseLoopback() {
  ifreq interface = {};
  std::strcpy(interface.ifr_name, "lo");
  interface.ifr_flags = IFF_UP | IFF_RUNNING;
  const int any = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  const bool raised = ioctl(any, SIOCSIFFLAGS, &interface) == 0;
  close(any);
  return raised;
}

}  // namespace velmohelp::testing
