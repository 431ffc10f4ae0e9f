#include "platform/linux/timed_read.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>

#include "platform/linux/retry.h"

namespace velmohelp {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// Milliseconds until a time, rounded up so that the last one is waited for.
int Until(Clock::time_point end) {
  const auto left = std::chrono::ceil<milliseconds>(end - Clock::now());
  return static_cast<int>(std::max(left, milliseconds(0)).count());
}

bool IsReadableBefore(Clock::time_point end, const Descriptor& pipe) {
  pollfd waited = {pipe.number(), POLLIN, 0};
  return Retry([&] { return poll(&waited, 1, Until(end)); }) > 0;
}

}  // namespace

std::optional<std::string> ReadUntilClosed(const Descriptor& pipe,
                                           milliseconds patience,
                                           std::size_t limit) {
  const Clock::time_point end = Clock::now() + patience;
  char piece[4096];
  std::string text;
  while (text.size() <= limit && IsReadableBefore(end, pipe)) {
    const ssize_t got =
        Retry([&] { return read(pipe.number(), piece, sizeof piece); });
    if (got < 0) return std::nullopt;
    if (got == 0) return text;
    text.append(piece, static_cast<std::size_t>(got));
  }
  return std::nullopt;
}

}  // namespace velmohelp
