// System calls that a signal of the host's may interrupt.
#ifndef PLATFORM_LINUX_RETRY_ON_EINTR_H_
#define PLATFORM_LINUX_RETRY_ON_EINTR_H_

#include <cerrno>

namespace velmohelp {

/// Repeats a system call for as long as it fails with EINTR: a host with an
/// interval timer and handlers without SA_RESTART interrupts every slow call.
template <typename Call>
auto RetryOnEintr(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_RETRY_ON_EINTR_H_
