// White space around a text.
#ifndef UTIL_TRIM_H_
#define UTIL_TRIM_H_

#include <string_view>

namespace velmohelp {

/// text without the bytes of spaces at its start and its end. The caller lists
/// the bytes: formats differ in what they call white space, and the C
/// library's isspace() follows the host's locale.
constexpr std::string_view Trimmed(std::string_view text,
                                   std::string_view spaces) {
  const std::size_t first = text.find_first_not_of(spaces);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

}  // namespace velmohelp

#endif  // UTIL_TRIM_H_
