// System calls that a signal of the host's may interrupt.
#ifndef PLATFORM_LINUX_RETRY_H_
#define PLATFORM_LINUX_RETRY_H_

#include <cerrno>

namespace velmohelp {

/// Makes the call until no signal cuts it short: a host with an interval timer
/// gets its answer all the same.
template <typename Call>
auto Retry(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_RETRY_H_
