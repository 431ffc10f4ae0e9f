// The longest text that the client hands to the machine or takes from it.
#ifndef UTIL_TEXT_BUFFER_H_
#define UTIL_TEXT_BUFFER_H_

#include <cstddef>
#include <string>

namespace velmohelp {

/// Paths and encoded URLs pass through a buffer of this size.
inline constexpr std::size_t kTextBufferSize = 1024;

/// text has room in the buffer, its terminating NUL included.
inline bool FitsTextBuffer(const std::string& text) {
  return text.size() < kTextBufferSize;
}

}  // namespace velmohelp

#endif  // UTIL_TEXT_BUFFER_H_
