// Writes eight UTF-16 units of a block as UTF-8.
#ifndef UTIL_UNICODE_COMPRESS_UTF8_H_
#define UTIL_UNICODE_COMPRESS_UTF8_H_

#include "util/unicode/compress.h"
#include "util/unicode/utf16_block.h"

#ifdef VELMO_UNICODE_LANES

namespace velmohelp::unicode {

/// Returns how many bytes it wrote. Where no unit has a third byte, half of the
/// lanes need not be compressed.
VELMO_BMI2 VELMO_INLINE std::size_t WriteUtf8(const Utf8Lanes& lanes,
                                              ITEMUTF8* to) {
  const bool any_third = Any(lanes.first_mask);
  const std::size_t bytes = Kept<ITEMUTF8>(lanes.rest_mask) +
                            (any_third ? Kept<ITEMUTF8>(lanes.first_mask) : 0);
  const SavedOvershoot overshoot(to + bytes);
  if (any_third) {
    Compress(InterleaveLow(lanes.first, lanes.rest),
             InterleaveLow(lanes.first_mask, lanes.rest_mask), to);
    Compress(InterleaveHigh(lanes.first, lanes.rest),
             InterleaveHigh(lanes.first_mask, lanes.rest_mask), to);
  } else {
    Compress(lanes.rest, lanes.rest_mask, to);
  }
  overshoot.Restore();
  return bytes;
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_COMPRESS_UTF8_H_
