// Reads one character. The source is not empty, and is not moved.
#ifndef UTIL_UNICODE_DECODE_H_
#define UTIL_UNICODE_DECODE_H_

#include "util/unicode/code_points.h"
#include "util/unicode/cursor.h"

namespace velmohelp::unicode {

/// A character and its length in units, or why it cannot be read.
struct Decoded {
  ITEMConversionResult result = kConversionComplete;
  ITEMUTF32 value = 0;
  std::size_t units = 1;
};

inline Decoded DecodeUtf8(const Cursor<const ITEMUTF8>& source) {
  const std::size_t trailing = TrailingBytes(*source.at());
  if (trailing >= source.left()) return {.result = kConversionSourceExhausted};
  if (!IsLegalSequence(source.at())) {
    return {.result = kConversionSourceIllegal};
  }
  return {.value = DecodeLegal(source.at(), trailing), .units = trailing + 1};
}

/// A high surrogate at the end of the source is a character of its own, in
/// strict mode too: no result of UTF-16 says that the source is exhausted.
inline Decoded DecodeUtf16(const Cursor<const ITEMUTF16>& source,
                           bool lenient) {
  const ITEMUTF32 unit = *source.at();
  const bool last = source.left() == 1;
  if (!IsSurrogate(unit) || (last && IsHighSurrogate(unit))) {
    return {.value = unit};
  }
  if (IsHighSurrogate(unit) && IsLowSurrogate(source.at()[1])) {
    return {.value = PairedCodePoint(unit, source.at()[1]), .units = 2};
  }
  if (!lenient) return {.result = kConversionSourceIllegal};
  return {.value = unit};
}

}  // namespace velmohelp::unicode

#endif  // UTIL_UNICODE_DECODE_H_
