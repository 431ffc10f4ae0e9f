// Code that runs in a process which shares the host's memory: system calls, and
// nothing else.
#ifndef PLATFORM_LINUX_CHILD_CODE_H_
#define PLATFORM_LINUX_CHILD_CODE_H_

#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <cstddef>

/// Marks a function that runs between clone and exec: sanitizers would take its
/// stack for the host's.
#define VELMO_CHILD \
  __attribute__((no_sanitize("address", "undefined", "thread")))

namespace velmohelp {

/// Bytes of the kernel's signal set.
inline constexpr std::size_t kSignalSetSize = (NSIG - 1) / 8;

/// close() of the C library is a cancellation point, and may be intercepted.
VELMO_CHILD inline void CloseFd(int fd) { syscall(SYS_close, fd); }

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_CHILD_CODE_H_
