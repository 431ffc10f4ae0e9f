// Sixteen bytes of UTF-8 at once, which begin between two characters.
//
// Every byte is seen together with the three before it, as if a character ended
// there, and every lane computes the code point that this would be. A mask then
// keeps the lanes in which a character does end:
//
//     byte     78    C3    A9    E2    82    AC
//     prev1    00    78    C3    A9    E2    82
//     prev2    00    00    78    C3    A9    E2
//     value    0078  -     00E9  -     -     20AC
//     mask     FF    00    FF    00    00    FF
//
// A sequence that the block cuts ends nowhere, so no lane of it is kept, and
// the next block begins with it.
#ifndef UTIL_UNICODE_UTF8_BLOCK_H_
#define UTIL_UNICODE_UTF8_BLOCK_H_

#include "util/unicode/code_points.h"
#include "util/unicode/lanes.h"

#ifdef VELMO_UNICODE_LANES

namespace velmohelp::unicode {

struct Utf8Block {
  VELMO_INLINE explicit Utf8Block(U8x16 block)
      : byte(block),
        prev1(ShiftLanesUp<1>(block)),
        prev2(ShiftLanesUp<2>(block)),
        prev3(ShiftLanesUp<3>(block)),
        trailing((byte & 0xC0) == 0x80),
        third(AtLeast(prev2, 0xE0)),
        fourth(AtLeast(prev3, 0xF0)) {}

  U8x16 byte;
  U8x16 prev1, prev2, prev3;  ///< the first, second and third byte before it
  // Masks:
  U8x16 trailing;  ///< the byte is a trailing byte
  U8x16 third;     ///< a lead byte says that this is its third byte
  U8x16 fourth;    ///< a lead byte says that this is its fourth byte
};

/// The rules of IsLegalSequence. Of a sequence that the block cuts, the bytes
/// inside the block are checked.
VELMO_INLINE bool IsLegal(const Utf8Block& b) {
  const U8x16 expected = AtLeast(b.prev1, 0xC0) | b.third | b.fourth;
  const U8x16 bad_lead = ((b.byte & 0xFE) == 0xC0) | AtLeast(b.byte, 0xF5);
  const U8x16 bad_second = ((b.prev1 == 0xE0) & ~AtLeast(b.byte, 0xA0)) |
                           ((b.prev1 == 0xF0) & ~AtLeast(b.byte, 0x90)) |
                           ((b.prev1 == 0xF4) & AtLeast(b.byte, 0x90));
  return !Any((expected ^ b.trailing) | bad_lead | bad_second);
}

VELMO_INLINE bool HasSurrogates(const Utf8Block& b) {
  return Any((b.prev1 == 0xED) & AtLeast(b.byte, 0xA0));
}

/// How many bytes the block's whole characters have: all but those of a
/// sequence that the block cuts. The block is legal, so at most one of its last
/// three bytes leads such a sequence. No branch: where text cuts a character is
/// not predictable.
VELMO_INLINE std::size_t WholeCharacters(const ITEMUTF8* block) {
  return kByteLanes - (block[15] >= 0xC0 ? 1U : 0U) -
         (block[14] >= 0xE0 ? 2U : 0U) - (block[13] >= 0xF0 ? 3U : 0U);
}

/// A value for each byte, as its low, middle and high byte, and the mask of the
/// lanes in which a character ends.
struct Utf8Values {
  U8x16 low, middle, high;
  U8x16 mask;
};

/// The payload bits of up to four bytes, moved together:
///     prev3      prev2      prev1      byte
///     11110aaa   10bbBBBB   10ccccCC   10dddddd
///            high 000aaabb   middle BBBBcccc   low CCdddddd
VELMO_INLINE Utf8Values CodePoints(const Utf8Block& b) {
  const U8x16 low = b.trailing & ((b.byte & 0x3F) | ShiftBitsLeft<6>(b.prev1));
  const U8x16 middle = (ShiftBitsRight<2>(b.prev1) & 0x0F) |
                       ((b.third | b.fourth) & ShiftBitsLeft<4>(b.prev2));
  const U8x16 high =
      ShiftBitsLeft<2>(b.prev3 & 0x07) | (ShiftBitsRight<4>(b.prev2) & 0x03);
  return {low | (b.byte & ~b.trailing), middle & b.trailing, high & b.fourth,
          ~(AtLeast(b.byte, 0xC0) | AtLeast(b.prev1, 0xE0) |
            AtLeast(b.prev2, 0xF0))};
}

/// The same as UTF-16. Of a sequence of four bytes two lanes are kept: the
/// third byte's holds the high surrogate, because its upper bits complete the
/// ten that the high surrogate has, and the fourth byte's the low one:
///     11110aaa   10aabbbb   10bbcccc            10dddddd
///                           110110pp ppbbbbbb   110111cc ccdddddd
/// pppp is the plane aaaaa minus one, which subtracts 0x10000.
VELMO_INLINE Utf8Values Utf16Units(const Utf8Block& b) {
  Utf8Values v = CodePoints(b);
  v.mask = ~(AtLeast(b.byte, 0xC0) | AtLeast(b.prev1, 0xE0));
  v.high = U8x16{};
  if (!Any(AtLeast(b.byte, 0xF0))) return v;
  const U8x16 third_of_four = AtLeast(b.prev2, 0xF0);
  const U8x16 plane =
      (ShiftBitsLeft<2>(b.prev2 & 0x07) | (ShiftBitsRight<4>(b.prev1) & 0x03)) -
      1;
  const U8x16 high_low_byte = ShiftBitsLeft<6>(plane) |
                              ShiftBitsLeft<2>(b.prev1 & 0x0F) |
                              (ShiftBitsRight<4>(b.byte) & 0x03);
  const U8x16 high_high_byte = 0xD8 | ShiftBitsRight<2>(plane);
  const U8x16 low_high_byte = 0xDC | (ShiftBitsRight<2>(b.prev1) & 0x03);
  constexpr U8x16 kLast = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF};
  v.mask &= ~(third_of_four & kLast);
  v.low = (third_of_four & high_low_byte) | (~third_of_four & v.low);
  v.middle = (third_of_four & high_high_byte) | (b.fourth & low_high_byte) |
             (~(third_of_four | b.fourth) & v.middle);
  return v;
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_UTF8_BLOCK_H_
