// Concatenation of texts.
#ifndef UTIL_STR_CAT_H_
#define UTIL_STR_CAT_H_

#include <initializer_list>
#include <string>
#include <string_view>

namespace velmohelp {

/// All pieces in one string, with a single allocation.
inline std::string StrCat(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  std::string text;
  text.reserve(size);
  for (const std::string_view piece : pieces) text += piece;
  return text;
}

}  // namespace velmohelp

#endif  // UTIL_STR_CAT_H_
