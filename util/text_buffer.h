// The longest text that the client passes to the machine or accepts from it.
#ifndef UTIL_TEXT_BUFFER_H_
#define UTIL_TEXT_BUFFER_H_

#include <cstddef>
#include <string_view>

namespace velmohelp {

/// Paths and encoded URLs pass through a buffer of this size.
inline constexpr std::size_t kTextBufferSize = 1024;

/// text fits into the buffer together with its terminating NUL.
constexpr bool FitsTextBuffer(std::string_view text) {
  return text.size() < kTextBufferSize;
}

}  // namespace velmohelp

#endif  // UTIL_TEXT_BUFFER_H_
