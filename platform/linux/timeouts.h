// How long the host may be kept waiting.
#ifndef PLATFORM_LINUX_TIMEOUTS_H_
#define PLATFORM_LINUX_TIMEOUTS_H_

#include <chrono>

namespace velmohelp {

/// The bound of each question to a helper, other than that of a fetch, which
/// the client sets.
struct Timeouts {
  /// Finding the default browser, or asking the desktop to open a URL.
  std::chrono::milliseconds browser = std::chrono::seconds(10);
  /// A person who presses a key waits for a dead name server no longer.
  std::chrono::milliseconds reach = std::chrono::seconds(2);
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_TIMEOUTS_H_
