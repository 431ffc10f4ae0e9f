// Legality of UTF-8, for the library's own use.
#ifndef UTIL_UNICODE_LEGALITY_H_
#define UTIL_UNICODE_LEGALITY_H_

#include <velmohelp/unicode.h>

#include <string_view>

namespace velmohelp::unicode {

/// Whether a text is UTF-8 as ITEMisLegalUTF8String sees it: surrogates pass,
/// and so do zero bytes.
inline bool IsLegalUtf8(std::string_view text) {
  const auto* bytes = reinterpret_cast<const ITEMUTF8*>(text.data());
  return ITEMisLegalUTF8String(bytes, bytes + text.size());
}

}  // namespace velmohelp::unicode

#endif  // UTIL_UNICODE_LEGALITY_H_
