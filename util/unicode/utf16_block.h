// Eight units of UTF-16 at once.
#ifndef UTIL_UNICODE_UTF16_BLOCK_H_
#define UTIL_UNICODE_UTF16_BLOCK_H_

#include "util/unicode/lanes.h"

#ifdef VELMO_UNICODE_LANES

namespace velmohelp::unicode {

VELMO_INLINE bool HasSurrogates(Units units) {
  return Any((units & 0xF800) == 0xD800);
}

/// A block that begins between characters.
struct Utf16Block {
  VELMO_INLINE explicit Utf16Block(Units block)
      : unit(block),
        high((block & 0xFC00) == 0xD800),
        low((block & 0xFC00) == 0xDC00) {}

  Units unit;
  Units high, low;  ///< the unit is such a surrogate
};

/// Whether every low surrogate follows a high one and no high one is followed
/// by anything else. The block's end may cut a pair.
VELMO_INLINE bool IsPaired(const Utf16Block& b) {
  return !Any(b.low ^ FromBefore<2>(b.high));
}

/// A code point for each unit, as its low and high 16 bits, and where there is
/// one: for a pair in the first unit's lane. Nowhere for a pair that the end of
/// the block cuts.
struct Utf16Values {
  Units low, high;
  Units kept;
  std::size_t whole;  ///< length of the block without such a pair
};

/// The ten bits of a high surrogate count from 0x10000: the upper four, plus
/// one, are the code point's high half.
VELMO_INLINE Utf16Values CodePoints(const Utf16Block& b) {
  const Units second = FromBehind<2>(b.unit);
  const Units low = (b.unit << 10) | (second & 0x03FF);
  const Units high = ((b.unit >> 6) & 0x0F) + 1;
  constexpr Units kLast = {0, 0, 0, 0, 0, 0, 0, 0xFFFF};
  return {(b.high & low) | (~b.high & b.unit), b.high & high,
          ~(b.low | (b.high & kLast)),
          kUnitLanes - static_cast<std::size_t>(b.high[7] & 1)};
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_UTF16_BLOCK_H_
