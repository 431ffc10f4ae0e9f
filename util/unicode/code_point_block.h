// Four code points at once, on their way into UTF-8 or UTF-16.
#ifndef UTIL_UNICODE_CODE_POINT_BLOCK_H_
#define UTIL_UNICODE_CODE_POINT_BLOCK_H_

#include "util/unicode/lanes.h"

#ifdef VELMO_UNICODE_LANES

namespace velmohelp::unicode {

/// As much room in each lane as the longest form takes, the units in the order
/// of the memory, the last unit last; where a form is shorter, its first lanes
/// are not kept.
struct Encoded {
  Words units;
  Words kept;
};

/// The code points are below 0x80000000.
VELMO_INLINE Words From(Words code_points, std::int32_t bound) {
  return (Words)((Signed)code_points >= bound);
}

VELMO_INLINE bool HasSurrogates(Words code_points) {
  return Any((code_points & 0xFFFFF800) == 0xD800);
}

/// Four bytes in each lane, up to 0x1FFFFF. Six bits go into each, all marked
/// as trailing ones; the first then gets the rest of a lead byte's mark.
VELMO_INLINE Encoded ToUtf8(Words c) {
  const Words two = From(c, 0x80);
  const Words three = From(c, 0x800);
  const Words four = From(c, 0x10000);
  const Words bytes = (c >> 18) | ((c >> 4) & 0x3F00) | ((c << 10) & 0x3F0000) |
                      ((c << 24) & 0x3F000000);
  const Words lead =
      (four & 0x70) | (three & ~four & 0x6000) | (two & ~three & 0x400000);
  const Words longer = bytes | lead | 0x80808080;
  return {(two & longer) | (~two & (c << 24)),
          (four & 0xFF) | (three & 0xFF00) | (two & 0xFF0000) | 0xFF000000};
}

/// Two units in each lane, up to 0x10FFFF.
VELMO_INLINE Encoded ToUtf16(Words c) {
  const Words two = From(c, 0x10000);
  const Words first = (c >> 10) + (0xD800 - (0x10000 >> 10));
  const Words second = (c & 0x03FF) | 0xDC00;
  return {(two & (first | (second << 16))) | (~two & (c << 16)),
          (two & 0xFFFF) | 0xFFFF0000};
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_CODE_POINT_BLOCK_H_
