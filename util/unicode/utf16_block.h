// Eight units of UTF-16 at once, which begin between two characters. Of a pair,
// the code point is computed in the lane of the high surrogate, and the lane of
// the low one is dropped:
//
//     unit    0041    D83D    DE00    20AC
//     value   00041   1F600   -       020AC
//     mask    FFFF    FFFF    0000    FFFF
//
// A high surrogate in the last lane belongs to a pair that the block cuts: it
// is dropped too, and the next block begins with it.
#ifndef UTIL_UNICODE_UTF16_BLOCK_H_
#define UTIL_UNICODE_UTF16_BLOCK_H_

#include "util/unicode/lanes.h"

#ifdef VELMO_UNICODE_LANES

namespace velmohelp::unicode {

inline constexpr U16x8 kLastUnit = {0, 0, 0, 0, 0, 0, 0, 0xFFFF};

VELMO_INLINE bool HasSurrogates(U16x8 units) {
  return Any((units & 0xF800) == 0xD800);
}

struct Utf16Block {
  VELMO_INLINE explicit Utf16Block(U16x8 block)
      : unit(block),
        high((block & 0xFC00) == 0xD800),
        low((block & 0xFC00) == 0xDC00) {}

  U16x8 unit;
  U16x8 high, low;  ///< masks: the unit is a high, a low surrogate
};

/// Whether a low surrogate follows each high one and nothing else. The block
/// may cut the last pair.
VELMO_INLINE bool IsPaired(const Utf16Block& b) {
  return !Any(b.low ^ ShiftLanesUp<2>(b.high));
}

/// Code points as their low and high 16 bits, and the mask of the lanes that
/// hold one.
struct Utf16Values {
  U16x8 low, high;
  U16x8 mask;
};

/// A pair is 0x10000 + hhhhhhhhhh llllllllll, ten bits from each surrogate. The
/// top four bits of the high surrogate's ten, plus one for the 0x10000, are the
/// code point's high half:
///     high surrogate   110110hh hhHHHHHH        low   110111LL LLLLLLLL
///     high half        hhhh + 1                 low half   HHHHHHLL LLLLLLLL
VELMO_INLINE Utf16Values CodePoints(const Utf16Block& b) {
  const U16x8 next = ShiftLanesDown<2>(b.unit);
  const U16x8 low = (b.unit << 10) | (next & 0x03FF);
  const U16x8 high = ((b.unit >> 6) & 0x0F) + 1;
  return {(b.high & low) | (~b.high & b.unit), b.high & high,
          ~(b.low | (b.high & kLastUnit))};
}

/// Up to three bytes of UTF-8 for each unit, right-aligned, in memory order:
/// lane i of `first` holds the first of three bytes in its upper half, lane i
/// of `rest` the other two. The masks have ones where a byte is kept.
/// Interleaved:
///     unit    U+0041        U+00E9        U+20AC
///     first   .. ..         .. ..         .. E2
///     rest    .. 41         C3 A9         82 AC
struct Utf8Lanes {
  U16x8 first, first_mask;
  U16x8 rest, rest_mask;
};

/// For a block without surrogates:
///     0xxxxxxx, 110yyyyy 10xxxxxx, 1110zzzz 10yyyyyy 10xxxxxx
VELMO_INLINE Utf8Lanes ToUtf8(U16x8 unit) {
  const U16x8 one = (unit & 0xFF80) == 0;
  const U16x8 up_to_two = (unit & 0xF800) == 0;
  const U16x8 last = (one & unit) | (~one & ((unit & 0x3F) | 0x80));
  const U16x8 middle = ((unit >> 6) & 0x3F) | 0x80 | (up_to_two & 0xC0);
  return {((unit >> 12) | 0xE0) << 8, ~up_to_two & 0xFF00, (last << 8) | middle,
          0xFF00 | (~one & 0x00FF)};
}

/// The same with pairs. Each surrogate gives two of the pair's four bytes, in
/// `rest`. With 0x10000 added as 0x40 to the high surrogate's ten bits:
///     high   00000aaa bbbbbbCC   ->   11110aaa 10bbbbbb
///     low    110111cc ccdddddd   ->   10CCcccc 10dddddd
/// The third byte's CC are the last two bits of the high surrogate.
VELMO_INLINE Utf8Lanes ToUtf8(const Utf16Block& b) {
  const Utf8Lanes plain = ToUtf8(b.unit);
  const U16x8 bits = b.unit - (0xD800 - 0x40);
  const U16x8 high = ((bits << 6) & 0x3F00) | (bits >> 8) | 0x80F0;
  const U16x8 low = ((b.unit & 0x3F) << 8) | ((b.unit >> 6) & 0x0F) |
                    ((ShiftLanesUp<2>(b.unit) & 3) << 4) | 0x8080;
  const U16x8 paired = b.high | b.low;
  return {plain.first, plain.first_mask & ~paired,
          (b.high & high) | (b.low & low) | (~paired & plain.rest),
          plain.rest_mask & ~(b.high & kLastUnit)};
}

/// How many units the block's whole characters have: all but a high surrogate
/// in the last lane.
VELMO_INLINE std::size_t WholeCharacters(const Utf16Block& b) {
  return kUnitLanes - static_cast<std::size_t>(b.high[7] & 1);
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_UTF16_BLOCK_H_
