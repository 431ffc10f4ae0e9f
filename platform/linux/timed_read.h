// Reading an answer that may never come.
#ifndef PLATFORM_LINUX_TIMED_READ_H_
#define PLATFORM_LINUX_TIMED_READ_H_

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

#include "platform/linux/descriptor.h"

namespace velmohelp {

/// Everything that is written to a pipe until its last writer closes it.
/// nullopt when that takes longer than patience (on the monotonic clock: a
/// clock that is set meanwhile changes nothing), or more than limit bytes.
std::optional<std::string> ReadUntilClosed(const Descriptor& pipe,
                                           std::chrono::milliseconds patience,
                                           std::size_t limit);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_TIMED_READ_H_
