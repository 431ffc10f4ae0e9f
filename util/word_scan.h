// SWAR (SIMD within a register): looks for bytes eight at a time in a 64-bit
// word, in plain C++. MarkBelow(word, 0x20), for the first byte below a space:
//
//     bytes        h   e   l   l   o   \n  w   o
//                  68  65  6C  6C  6F  0A  77  6F
//     - 20 each    48  45  4C  4C  4F  EA  56  4F    0A - 20 borrows, and the
//                                                    byte after it is one less
//     & ~word      top bit set only where the byte itself had it clear
//     & 80 each    00  00  00  00  00  80  00  00    the marks
//
// The first mark is right; those after it may be the borrow's.
#ifndef UTIL_WORD_SCAN_H_
#define UTIL_WORD_SCAN_H_

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace velmohelp {

/// Eight bytes. The first one is in the lowest bits.
using Word = std::uint64_t;

inline Word LoadWord(const char* at) {
  Word word = 0;
  std::memcpy(&word, at, sizeof word);
  if constexpr (std::endian::native == std::endian::big) {
    word = __builtin_bswap64(word);
  }
  return word;
}

/// The byte in all eight places.
constexpr Word EightTimes(unsigned char byte) {
  return 0x0101010101010101U * byte;
}

/// Zero when no byte is below limit, which is 128 at most. Otherwise the top
/// bit of the first such byte is the lowest bit set.
constexpr Word MarkBelow(Word word, unsigned char limit) {
  return (word - EightTimes(limit)) & ~word & EightTimes(0x80);
}

/// How many bytes precede the first mark.
constexpr std::size_t FirstMarked(Word marks) {
  return static_cast<std::size_t>(std::countr_zero(marks)) / 8;
}

}  // namespace velmohelp

#endif  // UTIL_WORD_SCAN_H_
