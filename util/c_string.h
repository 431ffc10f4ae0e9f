// Texts that end at their first zero byte, as C and the platform take them.
#ifndef UTIL_C_STRING_H_
#define UTIL_C_STRING_H_

#include <string_view>

namespace velmohelp {

/// The bytes of text before its first zero byte.
constexpr std::string_view UpToZero(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

}  // namespace velmohelp

#endif  // UTIL_C_STRING_H_
