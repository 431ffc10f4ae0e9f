#include "platform/linux/folders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

#include "platform/linux/files.h"

namespace velmohelp {
namespace {

/// The largest entry of a password database that is waited for.
constexpr std::size_t kPasswordEntryLimit = 1U << 20U;

std::string WithoutFinalSlashes(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

std::optional<std::string> AbsolutePathIn(const char* variable) {
  const char* value = std::getenv(variable);
  if (value == nullptr || value[0] != '/') return std::nullopt;
  return WithoutFinalSlashes(value);
}

std::optional<std::string> HomeInPasswordDatabase() {
  std::vector<char> buffer(1024);
  struct passwd entry = {};
  struct passwd* found = nullptr;
  int error = 0;
  do {
    buffer.resize(buffer.size() * 2);
    error = getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found);
  } while (error == EINTR ||
           (error == ERANGE && buffer.size() < kPasswordEntryLimit));
  if (found == nullptr || found->pw_dir == nullptr) return std::nullopt;
  if (found->pw_dir[0] != '/') return std::nullopt;
  return WithoutFinalSlashes(found->pw_dir);
}

std::optional<std::string> Home() {
  const auto home = AbsolutePathIn("HOME");
  return home ? home : HomeInPasswordDatabase();
}

bool MakeDirectories(const std::string& path) {
  if (IsDirectory(path)) return true;
  if (path == "/" || !MakeDirectories(FolderOf(path))) return false;
  // Another program may have made it in the meantime.
  return mkdir(path.c_str(), S_IRWXU) == 0 || IsDirectory(path);
}

}  // namespace

std::optional<std::string> PreferencesFolderPath() {
  if (auto folder = AbsolutePathIn("XDG_CONFIG_HOME")) return folder;
  const auto home = Home();
  if (!home) return std::nullopt;
  return (*home == "/" ? "" : *home) + "/.config";
}

std::optional<std::string> PreferencesFolder(bool create) {
  auto path = PreferencesFolderPath();
  if (!path) return std::nullopt;
  const bool exists = create ? MakeDirectories(*path) : IsDirectory(*path);
  return exists ? path : std::nullopt;
}

}  // namespace velmohelp
