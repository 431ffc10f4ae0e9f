// Whether bytes are valid UTF-8: the one place that knows.
#ifndef UTIL_UNICODE_LEGALITY_H_
#define UTIL_UNICODE_LEGALITY_H_

#include <velmohelp/unicode.h>

#include <string_view>

namespace velmohelp::unicode {

/// Whether a range is legal UTF-8. Surrogates are legal here, and so are zero
/// bytes; IsUtf8 in util/utf8.h refuses surrogates.
bool IsLegalUtf8(const ITEMUTF8* first, const ITEMUTF8* last);

inline bool IsLegalUtf8(std::string_view text) {
  const auto* bytes = reinterpret_cast<const ITEMUTF8*>(text.data());
  return IsLegalUtf8(bytes, bytes + text.size());
}

}  // namespace velmohelp::unicode

#endif  // UTIL_UNICODE_LEGALITY_H_
