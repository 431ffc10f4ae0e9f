// Sixteen bytes of UTF-8 at once.
//
// Every byte is looked at together with the three before it, and as if a
// character ended with it: that gives a value in each lane. Then the lanes are
// kept in which none ends.
#ifndef UTIL_UNICODE_UTF8_BLOCK_H_
#define UTIL_UNICODE_UTF8_BLOCK_H_

#include "util/unicode/code_points.h"
#include "util/unicode/lanes.h"

#ifdef VELMO_UNICODE_LANES

namespace velmohelp::unicode {

/// A block that begins between characters, and what precedes each of its bytes.
struct Utf8Block {
  VELMO_INLINE explicit Utf8Block(Bytes block)
      : byte(block),
        before(FromBefore<1>(block)),
        before2(FromBefore<2>(block)),
        before3(FromBefore<3>(block)),
        trailing((byte & 0xC0) == 0x80),
        third(AtLeast(before2, 0xE0)),
        fourth(AtLeast(before3, 0xF0)) {}

  Bytes byte, before, before2, before3;
  Bytes trailing;  ///< the byte is a trailing one
  Bytes third;     ///< it has to be the third of its character, or the
                   ///< fourth's lead lies two before
  Bytes fourth;    ///< it has to be the fourth of its character
};

/// The same rules as IsLegalSequence, for a sequence that the block's end cuts
/// as far as they go.
VELMO_INLINE bool IsLegal(const Utf8Block& b) {
  const Bytes expected = AtLeast(b.before, 0xC0) | b.third | b.fourth;
  const Bytes no_lead = ((b.byte & 0xFE) == 0xC0) | AtLeast(b.byte, 0xF5);
  const Bytes no_second = ((b.before == 0xE0) & ~AtLeast(b.byte, 0xA0)) |
                          ((b.before == 0xF0) & ~AtLeast(b.byte, 0x90)) |
                          ((b.before == 0xF4) & AtLeast(b.byte, 0x90));
  return !Any((expected ^ b.trailing) | no_lead | no_second);
}

VELMO_INLINE bool HasSurrogates(const Utf8Block& b) {
  return Any((b.before == 0xED) & AtLeast(b.byte, 0xA0));
}

/// Length of the block without a sequence that its end cuts.
VELMO_INLINE std::size_t WholeCharacters(const ITEMUTF8* block) {
  const std::size_t cut3 = block[13] >= 0xF0 ? 3 : 0;
  const std::size_t cut2 = block[14] >= 0xE0 ? 2 : cut3;
  return kByteLanes - (block[15] >= 0xC0 ? 1 : cut2);
}

/// A value for each byte, as its low, middle and high byte, and where there is
/// one: nowhere in a sequence that the end of the block cuts.
struct Utf8Values {
  Bytes low, middle, high;
  Bytes kept;
};

/// xxxxxxx, 110xxxxx 10yyyyyy and so on: six bits from the byte, six from the
/// one before, and what remains from those before that.
VELMO_INLINE Utf8Values CodePoints(const Utf8Block& b) {
  const Bytes low = b.trailing & ((b.byte & 0x3F) | ShiftLeft<6>(b.before));
  const Bytes middle = (ShiftRight<2>(b.before) & 0x0F) |
                       ((b.third | b.fourth) & ShiftLeft<4>(b.before2));
  const Bytes high =
      ShiftLeft<2>(b.before3 & 0x07) | (ShiftRight<4>(b.before2) & 0x03);
  return {low | (b.byte & ~b.trailing), middle & b.trailing, high & b.fourth,
          ~(AtLeast(b.byte, 0xC0) | AtLeast(b.before, 0xE0) |
            AtLeast(b.before2, 0xF0))};
}

/// UTF-16 units. The third byte of four gives the high surrogate, since its
/// upper half ends the ten bits that the pair's first unit holds, the fourth
/// byte gives the low one. To subtract 0x10000 is to count planes from 0.
VELMO_INLINE Utf8Values Utf16Units(const Utf8Block& b) {
  Utf8Values v = CodePoints(b);
  v.kept = ~(AtLeast(b.byte, 0xC0) | AtLeast(b.before, 0xE0));
  v.high = Bytes{};
  if (!Any(AtLeast(b.byte, 0xF0))) return v;
  const Bytes first = AtLeast(b.before2, 0xF0);
  const Bytes plane =
      (ShiftLeft<2>(b.before2 & 0x07) | (ShiftRight<4>(b.before) & 0x03)) - 1;
  const Bytes first_low = ShiftLeft<6>(plane) | ShiftLeft<2>(b.before & 0x0F) |
                          (ShiftRight<4>(b.byte) & 0x03);
  const Bytes first_high = 0xD8 | ShiftRight<2>(plane);
  const Bytes second_high = 0xDC | (ShiftRight<2>(b.before) & 0x03);
  constexpr Bytes kLast = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF};
  v.kept &= ~(first & kLast);
  v.low = (first & first_low) | (~first & v.low);
  v.middle = (first & first_high) | (b.fourth & second_high) |
             (~(first | b.fourth) & v.middle);
  return v;
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_UTF8_BLOCK_H_
