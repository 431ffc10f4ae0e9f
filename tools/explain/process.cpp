#include "tools/explain/process.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "platform/linux/unique_fd.h"
#include "tools/files.h"
#include "tools/lines.h"

namespace velmohelp::tool {
namespace {

namespace fs = std::filesystem;

std::string LastError() { return std::generic_category().message(errno); }

std::string ReadSystemFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> Records(const std::string& text) {
  std::vector<std::string> records;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\0', at), text.size());
    records.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return records;
}

/// The folder of the library's file among the mappings of a process.
std::string LibraryFolderIn(const std::string& maps) {
  std::string folder;
  ForEachLine(maps, [&](std::string_view line, std::size_t) {
    const std::size_t path = line.find('/');
    const std::size_t name = line.rfind("/libvelmohelp");
    if (path == std::string_view::npos || name == std::string_view::npos) {
      return;
    }
    folder = line.substr(path, name - path);
  });
  return folder;
}

/// Two paths of the system lead to the same file.
bool IsSame(const std::string& a, const std::string& b) {
  struct stat first = {};
  struct stat second = {};
  return stat(a.c_str(), &first) == 0 && stat(b.c_str(), &second) == 0 &&
         first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

UniqueFd Open(const std::string& path) {
  return UniqueFd(open(path.c_str(), O_RDONLY | O_CLOEXEC));
}

/// Moves this process to a namespace of the other one's. True also when it is
/// there already.
bool Enter(const std::string& process, const char* name, int kind) {
  const std::string space = process + "/ns/" + name;
  if (IsSame(space, std::string("/proc/self/ns/") + name)) return true;
  const UniqueFd file = Open(space);
  return file && setns(file.get(), kind) == 0;
}

/// The root is taken before the namespaces change, and entered afterwards: the
/// process may have one of its own in them.
std::string EnterSandbox(const std::string& process) {
  const std::string root = process + "/root";
  const bool same_files =
      IsSame(process + "/ns/mnt", "/proc/self/ns/mnt") && IsSame(root, "/");
  const bool same_network = IsSame(process + "/ns/net", "/proc/self/ns/net");
  if (same_files && same_network) return "";
  const UniqueFd folder = Open(root);
  if (!folder) return LastError();
  const bool entered = Enter(process, "user", CLONE_NEWUSER) &&
                       Enter(process, "mnt", CLONE_NEWNS) &&
                       Enter(process, "net", CLONE_NEWNET);
  if (!entered) return LastError();
  if (fchdir(folder.get()) != 0 || chroot(".") != 0) return LastError();
  return "";
}

void TakeOver(const std::vector<std::string>& environment) {
  clearenv();
  for (const std::string& entry : environment) {
    const std::size_t sign = entry.find('=');
    if (sign == std::string::npos || sign == 0) continue;
    setenv(entry.substr(0, sign).c_str(), entry.c_str() + sign + 1, 1);
  }
}

/// The path as the process has it. Seen from here it may begin with the path of
/// the process's own root.
std::string BelowRoot(const std::string& path, const std::string& process) {
  std::error_code error;
  const std::string root = fs::read_symlink(process + "/root", error).string();
  const bool below = root.size() > 1 && path.starts_with(root + "/");
  return below ? path.substr(root.size()) : path;
}

}  // namespace

HostProcess BecomeProcess(const std::string& pid) {
  const std::string process = "/proc/" + pid;
  std::error_code error;
  HostProcess host;
  host.executable = fs::read_symlink(process + "/exe", error).string();
  if (error) {
    throw FileError("process " + pid + ": " + error.message());
  }
  host.executable = BelowRoot(host.executable, process);
  host.library_folder =
      BelowRoot(LibraryFolderIn(ReadSystemFile(process + "/maps")), process);
  host.environment = Records(ReadSystemFile(process + "/environ"));
  host.not_entered = EnterSandbox(process);
  TakeOver(host.environment);
  return host;
}

}  // namespace velmohelp::tool
