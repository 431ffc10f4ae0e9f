#include "platform/linux/folders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "platform/linux/files.h"

namespace velmohelp {
namespace {

namespace fs = std::filesystem;

/// No larger entry of the password database is read.
constexpr std::size_t kPasswordEntryLimit = 1U << 20U;

std::string WithoutFinalSlashes(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

/// nullopt also for a path that no file can have, and in a set-user-ID host:
/// whoever starts that one must not choose what it reads.
std::optional<std::string> AbsolutePathIn(const char* variable) {
  const char* value = secure_getenv(variable);
  if (value == nullptr || value[0] != '/') return std::nullopt;
  const std::string path = value;
  if (path.size() >= PATH_MAX) return std::nullopt;
  return WithoutFinalSlashes(path);
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

/// path is the home or below it, as far as the names tell.
bool IsInHome(const std::string& path) {
  const auto home = Home();
  if (!home) return false;
  const fs::path below = fs::path(path).lexically_normal().lexically_relative(
      fs::path(*home).lexically_normal());
  return !below.empty() && *below.begin() != "..";
}

/// A home that is missing is not mounted yet, or not meant to exist: what is
/// made in its place would hide it.
bool MayBeMade(const std::string& path) {
  return !IsInHome(path) || IsDirectory(*Home());
}

bool MakeDirectory(const std::string& path) {
  if (IsDirectory(path)) return true;
  // Another program may have made it in the meantime.
  return mkdir(path.c_str(), S_IRWXU) == 0 || IsDirectory(path);
}

/// One directory after the other, from the root on: a path of a thousand names
/// costs no stack.
bool MakeDirectories(const std::string& path) {
  for (std::size_t end = path.find('/', 1); end != std::string::npos;
       end = path.find('/', end + 1)) {
    if (!MakeDirectory(path.substr(0, end))) return false;
  }
  return MakeDirectory(path);
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
  const bool exists = IsDirectory(*path) ||
                      (create && MayBeMade(*path) && MakeDirectories(*path));
  return exists ? path : std::nullopt;
}

}  // namespace velmohelp
