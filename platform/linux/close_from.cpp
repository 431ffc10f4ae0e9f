#include "platform/linux/close_from.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "platform/linux/child_code.h"

namespace velmohelp {
namespace {

constexpr rlim_t kMostDescriptors = 1U << 20U;

/// The number that is the whole text; -1 for another text, such as "..".
VELMO_CHILD int Number(const char* text) {
  int number = 0;
  for (; *text >= '0' && *text <= '9'; ++text) {
    number = number * 10 + (*text - '0');
  }
  return *text == '\0' ? number : -1;
}

/// entries: size bytes from getdents64.
VELMO_CHILD void CloseEntries(const char* entries, long size, int first,
                              int folder) {
  for (long at = 0; at < size;) {
    const auto* entry = reinterpret_cast<const dirent64*>(entries + at);
    const int number = Number(entry->d_name);
    if (number >= first && number != folder) CloseFd(number);
    at += entry->d_reclen;
  }
}

}  // namespace

VELMO_CHILD bool CloseListedFrom(int first) {
  // Makes room in a full table.
  CloseFd(first);
  const int folder = static_cast<int>(
      syscall(SYS_openat, AT_FDCWD, "/proc/self/fd", O_RDONLY | O_DIRECTORY));
  if (folder == -1) return false;
  alignas(dirent64) char entries[1024];
  long size = 0;
  do {
    size = syscall(SYS_getdents64, folder, entries, sizeof entries);
    CloseEntries(entries, size, first, folder);
  } while (size > 0);
  CloseFd(folder);
  return size == 0;
}

VELMO_CHILD void CloseEachFrom(int first) {
  rlimit limit = {};
  getrlimit(RLIMIT_NOFILE, &limit);
  const rlim_t end =
      limit.rlim_max < kMostDescriptors ? limit.rlim_max : kMostDescriptors;
  for (auto fd = static_cast<rlim_t>(first); fd < end; ++fd) {
    CloseFd(static_cast<int>(fd));
  }
}

VELMO_CHILD void CloseFrom(int first) {
  if (syscall(SYS_close_range, first, ~0U, 0U) == 0) return;
  if (!CloseListedFrom(first)) CloseEachFrom(first);
}

}  // namespace velmohelp
