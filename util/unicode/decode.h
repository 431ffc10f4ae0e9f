// Reading one character. The source is not empty and is not moved.
#ifndef UTIL_UNICODE_TAKE_H_
#define UTIL_UNICODE_TAKE_H_

#include "util/unicode/code_points.h"
#include "util/unicode/cursor.h"

namespace velmohelp::unicode {

/// A character, or why there is none.
struct Taken {
  ITEMConversionResult result = kConversionComplete;
  ITEMUTF32 value = 0;
  std::size_t units = 1;
};

inline Taken TakeUtf8(const Cursor<const ITEMUTF8>& source) {
  const std::size_t trailing = TrailingBytes(*source.at());
  if (trailing >= source.left()) return {.result = kConversionSourceExhausted};
  if (!IsLegalSequence(source.at())) {
    return {.result = kConversionSourceIllegal};
  }
  return {.value = DecodeLegal(source.at(), trailing), .units = trailing + 1};
}

/// A high surrogate at the end of the source stands for itself in strict mode
/// too: a caller could not tell an exhausted source from a complete one.
inline Taken TakeUtf16(const Cursor<const ITEMUTF16>& source, bool lenient) {
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

#endif  // UTIL_UNICODE_TAKE_H_
