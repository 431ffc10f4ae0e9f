// Writes one character: all its units, or none.
#ifndef UTIL_UNICODE_ENCODE_H_
#define UTIL_UNICODE_ENCODE_H_

#include "util/unicode/code_points.h"
#include "util/unicode/cursor.h"

namespace velmohelp::unicode {

inline ITEMConversionResult EncodeUtf32(ITEMUTF32 value,
                                        Cursor<ITEMUTF32>& target) {
  if (target.empty()) return kConversionTargetExhausted;
  target.Write(value);
  return kConversionComplete;
}

/// Looks for room for one unit before strict mode refuses a value: a caller
/// that converts in pieces counts on hearing of the full target first.
inline ITEMConversionResult EncodeUtf16(ITEMUTF32 value, bool lenient,
                                        Cursor<ITEMUTF16>& target) {
  if (target.empty()) return kConversionTargetExhausted;
  if (!lenient && (IsSurrogate(value) || value > kLastCodePoint)) {
    return kConversionSourceIllegal;
  }
  if (value > kLastCodePoint) value = kReplacement;
  const bool paired = value >= kFirstPaired;
  if (paired && target.left() < 2) return kConversionTargetExhausted;
  if (paired) {
    value -= kFirstPaired;
    target.Write(kHighSurrogate + (value >> 10));
    value = kLowSurrogate + (value & 0x3FF);
  }
  target.Write(value);
  return kConversionComplete;
}

/// The bits of a lead byte that say how long its sequence is.
constexpr ITEMUTF32 LengthMark(std::size_t length) {
  return length == 1 ? 0 : 0xF0U << (4 - length);
}

/// Four bytes hold up to 0x1FFFFF, beyond Unicode. A greater value becomes
/// U+FFFD in two bytes, one too few for it, so that its lead byte comes out as
/// FF. Both are on purpose: hosts have stored such text and compare with it.
inline ITEMConversionResult EncodeUtf8(ITEMUTF32 value,
                                       Cursor<ITEMUTF8>& target) {
  std::size_t length = 4;
  if (value < 0x80) {
    length = 1;
  } else if (value < 0x800) {
    length = 2;
  } else if (value < 0x10000) {
    length = 3;
  } else if (value >= 0x200000) {
    length = 2;
    value = kReplacement;
  }
  if (target.left() < length) return kConversionTargetExhausted;
  std::size_t shift = 6 * (length - 1);
  target.Write((value >> shift) | LengthMark(length));
  while (shift != 0) {
    shift -= 6;
    target.Write(0x80 | ((value >> shift) & 0x3F));
  }
  return kConversionComplete;
}

}  // namespace velmohelp::unicode

#endif  // UTIL_UNICODE_ENCODE_H_
