// Four code points at once, to UTF-8 or UTF-16: every lane of 32 bits gets the
// longest form that fits, right-aligned, and a mask of the bytes that belong to
// the form that the code point really has. In memory order:
//
//     code point   U+0041        U+00E9        U+20AC        U+1F600
//     units        .. .. .. 41   .. .. C3 A9   .. E2 82 AC   F0 9F 98 80
//     mask         00 00 00 FF   00 00 FF FF   00 FF FF FF   FF FF FF FF
#ifndef UTIL_UNICODE_CODE_POINT_BLOCK_H_
#define UTIL_UNICODE_CODE_POINT_BLOCK_H_

#include "util/unicode/lanes.h"

#ifdef VELMO_UNICODE_LANES

namespace velmohelp::unicode {

/// What Compress takes: units, and ones in the mask where it keeps them.
struct Encoded {
  U32x4 units;
  U32x4 mask;
};

/// The code points are below 0x80000000, so that a signed comparison will do.
VELMO_INLINE U32x4 AtLeast(U32x4 code_points, std::int32_t bound) {
  return (U32x4)((I32x4)code_points >= bound);
}

VELMO_INLINE bool HasSurrogates(U32x4 code_points) {
  return Any((code_points & 0xFFFFF800) == 0xD800);
}

/// Up to 0x1FFFFF. Six bits go into each byte, and every byte gets the mark of
/// a trailing one; the lead byte then gets the rest of its length mark:
///     code point   ........ ...aaabb bbbbcccc ccdddddd
///     bytes        ..aaa ..bbbbbb ..cccccc ..dddddd
VELMO_INLINE Encoded ToUtf8(U32x4 c) {
  const U32x4 two = AtLeast(c, 0x80);
  const U32x4 three = AtLeast(c, 0x800);
  const U32x4 four = AtLeast(c, 0x10000);
  const U32x4 bytes = (c >> 18) | ((c >> 4) & 0x3F00) | ((c << 10) & 0x3F0000) |
                      ((c << 24) & 0x3F000000);
  const U32x4 lead =
      (four & 0x70) | (three & ~four & 0x6000) | (two & ~three & 0x400000);
  const U32x4 longer = bytes | lead | 0x80808080;
  return {(two & longer) | (~two & (c << 24)),
          (four & 0xFF) | (three & 0xFF00) | (two & 0xFF0000) | 0xFF000000};
}

/// Up to 0x10FFFF: a surrogate pair, or the unit itself in the second place.
VELMO_INLINE Encoded ToUtf16(U32x4 c) {
  const U32x4 two = AtLeast(c, 0x10000);
  const U32x4 high = (c >> 10) + (0xD800 - (0x10000 >> 10));
  const U32x4 low = (c & 0x03FF) | 0xDC00;
  return {(two & (high | (low << 16))) | (~two & (c << 16)),
          (two & 0xFFFF) | 0xFFFF0000};
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_CODE_POINT_BLOCK_H_
