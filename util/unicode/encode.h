// Writing one character: all its units, or none.
#ifndef UTIL_UNICODE_PUT_H_
#define UTIL_UNICODE_PUT_H_

#include "util/unicode/code_points.h"
#include "util/unicode/cursor.h"

namespace velmohelp::unicode {

inline ITEMConversionResult PutUtf32(ITEMUTF32 value,
                                     Cursor<ITEMUTF32>& target) {
  if (target.empty()) return kConversionTargetExhausted;
  target.Put(value);
  return kConversionComplete;
}

/// Looks for room for one unit before strict mode refuses a value: callers that
/// convert in pieces rely on a full target to be reported first.
inline ITEMConversionResult PutUtf16(ITEMUTF32 value, bool lenient,
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
    target.Put(kHighSurrogate + (value >> 10));
    value = kLowSurrogate + (value & 0x3FF);
  }
  target.Put(value);
  return kConversionComplete;
}

/// The mark of a sequence's length in its lead byte.
constexpr ITEMUTF32 LeadMark(std::size_t length) {
  return length == 1 ? 0 : 0xF0U << (4 - length);
}

/// Four bytes reach to 0x1FFFFF, beyond Unicode. What is still greater becomes
/// U+FFFD in two bytes, one too few for it: its lead byte comes out as FF. Both
/// are the interface's own, and callers have stored such text.
inline ITEMConversionResult PutUtf8(ITEMUTF32 value, Cursor<ITEMUTF8>& target) {
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
  target.Put((value >> shift) | LeadMark(length));
  while (shift != 0) {
    shift -= 6;
    target.Put(0x80 | ((value >> shift) & 0x3F));
  }
  return kConversionComplete;
}

}  // namespace velmohelp::unicode

#endif  // UTIL_UNICODE_PUT_H_
