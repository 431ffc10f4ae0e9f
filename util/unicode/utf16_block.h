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
};

/// The ten bits of a high surrogate count from 0x10000: the upper four, plus
/// one, are the code point's high half.
VELMO_INLINE Utf16Values CodePoints(const Utf16Block& b) {
  const Units second = FromBehind<2>(b.unit);
  const Units low = (b.unit << 10) | (second & 0x03FF);
  const Units high = ((b.unit >> 6) & 0x0F) + 1;
  constexpr Units kLast = {0, 0, 0, 0, 0, 0, 0, 0xFFFF};
  return {(b.high & low) | (~b.high & b.unit), b.high & high,
          ~(b.low | (b.high & kLast))};
}

/// Room for three bytes in the lanes of a unit: the first in `first`, the
/// others in `rest`, in the order of the memory and right-aligned. Where a form
/// is shorter, its lanes are not kept.
struct Utf8Forms {
  Units first, first_kept;
  Units rest, rest_kept;
};

/// For units that are characters: xxx, 110yyyyy 10zzzzzz and so on.
VELMO_INLINE Utf8Forms ToUtf8(Units unit) {
  const Units one = (unit & 0xFF80) == 0;
  const Units two = (unit & 0xF800) == 0;
  const Units last = (one & unit) | (~one & ((unit & 0x3F) | 0x80));
  const Units middle = ((unit >> 6) & 0x3F) | 0x80 | (two & 0xC0);
  return {((unit >> 12) | 0xE0) << 8, ~two & 0xFF00, (last << 8) | middle,
          0xFF00 | (~one & 0x00FF)};
}

/// The same with pairs: each half of one becomes two of its four bytes. The
/// third byte has the high one's last two bits, which are where they were; to
/// add 0x10000 is to add 0x40 to the bits that the high one holds.
VELMO_INLINE Utf8Forms ToUtf8(const Utf16Block& b) {
  constexpr Units kLast = {0, 0, 0, 0, 0, 0, 0, 0xFFFF};
  const Utf8Forms plain = ToUtf8(b.unit);
  const Units bits = b.unit - (0xD800 - 0x40);
  const Units high = ((bits << 6) & 0x3F00) | (bits >> 8) | 0x80F0;
  const Units low = ((b.unit & 0x3F) << 8) | ((b.unit >> 6) & 0x0F) |
                    ((FromBefore<2>(b.unit) & 3) << 4) | 0x8080;
  const Units paired = b.high | b.low;
  return {plain.first, plain.first_kept & ~paired,
          (b.high & high) | (b.low & low) | (~paired & plain.rest),
          plain.rest_kept & ~(b.high & kLast)};
}

/// Length of the block without a pair that its end cuts.
VELMO_INLINE std::size_t WholeCharacters(const Utf16Block& b) {
  return kUnitLanes - static_cast<std::size_t>(b.high[7] & 1);
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_UTF16_BLOCK_H_
