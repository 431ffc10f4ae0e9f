#include "platform/linux/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/retry.h"

namespace velmohelp {
namespace {

std::optional<struct stat> Status(const std::string& path) {
  struct stat status = {};
  if (path.find('\0') != std::string::npos) return std::nullopt;
  if (stat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

bool IsRegular(const Descriptor& file) {
  struct stat status = {};
  return fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

std::optional<FileEntry> FindEntry(const std::string& path) {
  const auto status = Status(path);
  if (!status) return std::nullopt;
  return FileEntry{{status->st_dev, status->st_ino}, S_ISDIR(status->st_mode)};
}

bool IsDirectory(const std::string& path) {
  const auto entry = FindEntry(path);
  return entry && entry->is_directory;
}

bool IsExecutable(const std::string& path) {
  const auto status = Status(path);
  return status && S_ISREG(status->st_mode) &&
         faccessat(AT_FDCWD, path.c_str(), X_OK, AT_EACCESS) == 0;
}

std::optional<std::string> FirstDirectory(
    const std::vector<std::string>& paths) {
  for (const std::string& path : paths) {
    if (IsDirectory(path)) return path;
  }
  return std::nullopt;
}

Descriptor OpenRegularFile(const std::string& path) {
  // Opening a pipe would wait for its writer, and opening a terminal could
  // make it the host's.
  constexpr int kFlags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  if (path.find('\0') != std::string::npos) return {};
  Descriptor file(Retry([&] { return open(path.c_str(), kFlags); }));
  if (!file || !IsRegular(file)) return {};
  return file;
}

std::optional<std::string> ReadAll(const Descriptor& file, std::size_t limit) {
  char piece[4096];
  std::string text;
  while (text.size() <= limit) {
    const ssize_t got =
        Retry([&] { return read(file.number(), piece, sizeof piece); });
    if (got < 0) return std::nullopt;
    if (got == 0) return text;
    text.append(piece, static_cast<std::size_t>(got));
  }
  return std::nullopt;
}

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == 0 ? "/" : path.substr(0, slash);
}

}  // namespace velmohelp
