// Units out of a block to UTF-8.
#ifndef UTIL_UNICODE_SQUEEZE_UTF8_H_
#define UTIL_UNICODE_SQUEEZE_UTF8_H_

#include "util/unicode/squeeze.h"
#include "util/unicode/utf16_block.h"

#ifdef VELMO_UNICODE_LANES

namespace velmohelp::unicode {

/// Writes the forms of eight units, and returns how many bytes these are. Where
/// none has three bytes, half of the lanes need not be looked at.
VELMO_WIDE VELMO_INLINE std::size_t CopyForms(const Utf8Forms& f,
                                              ITEMUTF8* to) {
  const bool longest = Any(f.first_kept);
  const std::size_t units = KeptIn<ITEMUTF8>(f.rest_kept) +
                            (longest ? KeptIn<ITEMUTF8>(f.first_kept) : 0);
  const Beyond beyond(to + units);
  if (longest) {
    Squeeze(FirstHalf(f.first, f.rest), FirstHalf(f.first_kept, f.rest_kept),
            to);
    Squeeze(SecondHalf(f.first, f.rest), SecondHalf(f.first_kept, f.rest_kept),
            to);
  } else {
    Squeeze(f.rest, f.rest_kept, to);
  }
  beyond.PutBack();
  return units;
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_SQUEEZE_UTF8_H_
