// What UTF-16 and UTF-8 mean, one character at a time.
#ifndef UTIL_UNICODE_CODE_POINTS_H_
#define UTIL_UNICODE_CODE_POINTS_H_

#include <velmohelp/unicode.h>

#include <cstddef>

namespace velmohelp::unicode {

inline constexpr ITEMUTF32 kReplacement = 0xFFFD;
/// UTF-16 needs a surrogate pair from this code point on.
inline constexpr ITEMUTF32 kFirstPaired = 0x10000;
inline constexpr ITEMUTF32 kLastCodePoint = 0x10FFFF;
inline constexpr ITEMUTF32 kHighSurrogate = 0xD800;
inline constexpr ITEMUTF32 kLowSurrogate = 0xDC00;

constexpr bool IsHighSurrogate(ITEMUTF32 unit) {
  return unit - kHighSurrogate < 0x400;
}

constexpr bool IsLowSurrogate(ITEMUTF32 unit) {
  return unit - kLowSurrogate < 0x400;
}

constexpr bool IsSurrogate(ITEMUTF32 unit) {
  return unit - kHighSurrogate < 0x800;
}

constexpr ITEMUTF32 PairedCodePoint(ITEMUTF32 high, ITEMUTF32 low) {
  return kFirstPaired + ((high - kHighSurrogate) << 10) + (low - kLowSurrogate);
}

/// How many trailing bytes a lead byte announces. 4 and 5 are of the longer
/// forms that UTF-8 once had: never legal, but they can run past the source.
constexpr std::size_t TrailingBytes(ITEMUTF8 lead) {
  if (lead < 0xC0) return 0;
  if (lead < 0xE0) return 1;
  if (lead < 0xF0) return 2;
  if (lead < 0xF8) return 3;
  return lead < 0xFC ? 4 : 5;
}

constexpr bool IsTrailingByte(ITEMUTF8 byte) { return (byte & 0xC0) == 0x80; }

/// The bounds of the second byte rule out overlong forms and code points above
/// U+10FFFF. ED has no bound of its own: surrogates are legal here.
constexpr bool IsSecondByte(ITEMUTF8 lead, ITEMUTF8 second) {
  if (lead == 0xE0) return second >= 0xA0 && second <= 0xBF;
  if (lead == 0xF0) return second >= 0x90 && second <= 0xBF;
  if (lead == 0xF4) return second >= 0x80 && second <= 0x8F;
  return IsTrailingByte(second);
}

/// Whether the sequence at bytes is legal. All of its 1 + TrailingBytes(*bytes)
/// bytes are readable.
constexpr bool IsLegalSequence(const ITEMUTF8* bytes) {
  const ITEMUTF8 lead = bytes[0];
  if (lead < 0x80) return true;
  if (lead < 0xC2 || lead > 0xF4 || !IsSecondByte(lead, bytes[1])) return false;
  if (lead >= 0xE0 && !IsTrailingByte(bytes[2])) return false;
  return lead < 0xF0 || IsTrailingByte(bytes[3]);
}

/// The code point of a legal sequence with this many trailing bytes.
constexpr ITEMUTF32 DecodeLegal(const ITEMUTF8* bytes, std::size_t trailing) {
  if (trailing == 0) return bytes[0];
  ITEMUTF32 value = bytes[0] & (0x3FU >> trailing);  // without the length mark
  for (std::size_t i = 1; i <= trailing; ++i) {
    value = (value << 6) | (bytes[i] & 0x3FU);
  }
  return value;
}

}  // namespace velmohelp::unicode

#endif  // UTIL_UNICODE_CODE_POINTS_H_
