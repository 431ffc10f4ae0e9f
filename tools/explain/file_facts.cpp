#include "tools/explain/file_facts.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>

namespace velmohelp::tool {
namespace {

/// The kernel follows a script's interpreter that is a script itself, so often.
constexpr int kMostInterpreters = 4;

std::string LastError() { return std::generic_category().message(errno); }

/// The first bytes of a file.
std::string HeadOf(const std::string& path) {
  std::array<char, 256> head = {};
  const int file =
      open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (file == -1) return "";
  const ssize_t size = read(file, head.data(), head.size());
  close(file);
  return {head.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
}

/// "#! /bin/sh -e" -> "/bin/sh"
std::string InterpreterIn(std::string_view head) {
  std::string_view line = head.substr(2, head.find('\n') - 2);
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  return std::string(line.substr(0, line.find_first_of(" \t\r")));
}

bool IsRegular(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

std::string WhyNotRun(const std::string& path, int depth) {
  if (std::string reason = WhyNotFound(path); !reason.empty()) return reason;
  if (!IsRegular(path)) return "not a file";
  if (faccessat(AT_FDCWD, path.c_str(), X_OK, AT_EACCESS) != 0) {
    return LastError();
  }
  const std::string head = HeadOf(path);
  // A program may be executable without being readable.
  if (head.empty() || head.starts_with("\177ELF")) return "";
  if (!head.starts_with("#!")) return "not a program";
  const std::string interpreter = InterpreterIn(head);
  if (depth == kMostInterpreters) return "too many interpreters";
  const std::string reason = WhyNotRun(interpreter, depth + 1);
  return reason.empty() ? "" : interpreter + ": " + reason;
}

}  // namespace

std::string WhyNotFound(const std::string& path) {
  struct stat status = {};
  if (path.empty()) return "an empty path";
  if (path.find('\0') != std::string::npos) return "a zero byte in the path";
  return stat(path.c_str(), &status) == 0 ? "" : LastError();
}

std::string WhyNotRead(const std::string& path) {
  if (std::string reason = WhyNotFound(path); !reason.empty()) return reason;
  if (!IsRegular(path)) return "not a file";
  const int file =
      open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (file == -1) return LastError();
  close(file);
  return "";
}

std::string WhyNotRun(const std::string& path) { return WhyNotRun(path, 0); }

}  // namespace velmohelp::tool
