#include "platform/linux/own_location.h"

#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "platform/linux/files.h"
#include "platform/linux/fixed_text.h"
#include "platform/linux/open_file.h"

namespace velmohelp {
namespace {

/// Bytes of the list of mappings that are read.
constexpr std::size_t kMapsLimit = 64U << 20U;

/// The list of mappings has one line each: the kernel writes a line feed in a
/// path as "\\012", and a backslash as it is. Where both readings name a file,
/// the one without a line feed is right.
std::string WithLineFeeds(std::string path) {
  constexpr std::string_view kEscape = "\\012";
  if (FindEntry(path)) return path;
  std::size_t at = 0;
  while ((at = path.find(kEscape, at)) != std::string::npos) {
    path.replace(at, kEscape.size(), 1, '\n');
  }
  return path;
}

/// The kernel appends a mark to the path of a file that has been replaced, as
/// an update does while its programs run. The folder is still the same. A file
/// may also have this name.
std::string WithoutDeletedMark(std::string path) {
  constexpr std::string_view kMark = " (deleted)";
  if (path.ends_with(kMark) && !FindEntry(path)) {
    path.resize(path.size() - kMark.size());
  }
  return path;
}

bool ConsumeHex(std::string_view& text, unsigned long& value) {
  const auto end =
      std::from_chars(text.data(), text.data() + text.size(), value, 16);
  text.remove_prefix(static_cast<std::size_t>(end.ptr - text.data()));
  return end.ec == std::errc();
}

/// One line is "from-to permissions offset device inode    path".
bool Covers(std::string_view line, unsigned long address) {
  unsigned long from = 0;
  unsigned long to = 0;
  if (!ConsumeHex(line, from) || !line.starts_with('-')) return false;
  line.remove_prefix(1);
  return ConsumeHex(line, to) && from <= address && address < to;
}

std::optional<std::string> FileMappedHere(unsigned long address) {
  const auto maps = ReadRegularFile("/proc/self/maps", kMapsLimit);
  return maps ? MappedFile(*maps, address) : std::nullopt;
}

/// path without links: helpers are beside the file, not beside a link to it.
std::string RealPath(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(
      realpath(path.c_str(), nullptr), &std::free);
  return real ? real.get() : path;
}

std::optional<std::string> FindOwnFolder() {
  static const char here = 0;
  Dl_info info = {};
  if (dladdr(&here, &info) != 0 && info.dli_fname != nullptr &&
      info.dli_fname[0] == '/') {
    return Dirname(RealPath(info.dli_fname));
  }
  // The host loaded the file by a relative path, and may have changed its
  // working directory since.
  const auto file = FileMappedHere(reinterpret_cast<std::uintptr_t>(&here));
  return file ? std::optional(Dirname(*file)) : std::nullopt;
}

FixedText<PATH_MAX> OwnFolderInPlace() {
  FixedText<PATH_MAX> folder;
  if (const auto path = FindOwnFolder()) folder.Set(*path);
  return folder;
}

}  // namespace

std::optional<std::string> MappedFile(std::string_view maps,
                                      unsigned long address) {
  while (!maps.empty()) {
    const std::string_view line = maps.substr(0, maps.find('\n'));
    maps.remove_prefix(std::min(line.size() + 1, maps.size()));
    const std::size_t path = line.find('/');
    if (!Covers(line, address)) continue;
    if (path == std::string_view::npos) return std::nullopt;
    return WithLineFeeds(WithoutDeletedMark(std::string(line.substr(path))));
  }
  return std::nullopt;
}

std::optional<std::string> OwnFolder() {
  // The file stays where it is while it is loaded. Following the links to it
  // costs more than all other questions about bundles.
  static const FixedText<PATH_MAX> folder = OwnFolderInPlace();
  return folder.text();
}

std::optional<std::string> HostExecutable() {
  std::string path(256, '\0');
  for (;;) {
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    if (length <= 0 || path[0] != '/') return std::nullopt;
    const auto size = static_cast<std::size_t>(length);
    if (size < path.size()) {
      path.resize(size);
      return WithoutDeletedMark(path);
    }
    path.resize(path.size() * 2);
  }
}

}  // namespace velmohelp
