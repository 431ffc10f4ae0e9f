#include "platform/linux/files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

#include "platform/linux/retry_on_eintr.h"

namespace velmohelp {
namespace {

std::optional<struct stat> Status(const std::string& path) {
  struct stat status = {};
  if (path.find('\0') != std::string::npos) return std::nullopt;
  if (stat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

struct CloseDirectory {
  void operator()(DIR* directory) const { closedir(directory); }
};

/// S_IFREG, S_IFDIR and so on; 0 when there is no file.
mode_t TypeOf(const UniqueFd& file) {
  struct stat status = {};
  if (!file || fstat(file.get(), &status) != 0) return 0;
  return status.st_mode & S_IFMT;
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

bool IsProgram(const std::string& path) {
  if (!IsExecutable(path)) return false;
  const UniqueFd file = OpenForReading(path);
  // A program that may be executed and not read is taken on trust.
  if (!file) return errno == EACCES;
  char start[4] = {};
  const ssize_t size =
      RetryOnEintr([&] { return read(file.get(), start, sizeof start); });
  const std::string_view bytes(start, size < 0 ? 0 : std::size_t(size));
  return bytes ==
             "\x7F"
             "ELF" ||
         bytes.starts_with("#!");
}

std::vector<std::string> EntriesOf(const std::string& directory) {
  std::vector<std::string> names;
  if (directory.find('\0') != std::string::npos) return names;
  const std::unique_ptr<DIR, CloseDirectory> entries(
      opendir(directory.c_str()));
  if (!entries) return names;
  while (const dirent* entry = readdir(entries.get())) {
    const std::string name = entry->d_name;
    if (name != "." && name != "..") names.push_back(name);
  }
  return names;
}

std::optional<std::string> FirstDirectory(
    const std::vector<std::string>& paths) {
  for (const std::string& path : paths) {
    if (IsDirectory(path)) return path;
  }
  return std::nullopt;
}

UniqueFd OpenForReading(const std::string& path) {
  constexpr int kFlags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  return UniqueFd(RetryOnEintr([&] { return open(path.c_str(), kFlags); }));
}

bool IsRegularFile(const UniqueFd& file) { return TypeOf(file) == S_IFREG; }

bool IsDirectory(const UniqueFd& file) { return TypeOf(file) == S_IFDIR; }

UniqueFd OpenRegularFile(const std::string& path) {
  if (path.find('\0') != std::string::npos) return {};
  UniqueFd file = OpenForReading(path);
  if (!IsRegularFile(file)) return {};
  return file;
}

std::string Dirname(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string Basename(std::string_view path) {
  while (path.ends_with('/')) path.remove_suffix(1);
  return std::string(path.substr(path.rfind('/') + 1));
}

}  // namespace velmohelp
