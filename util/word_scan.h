// Bytes looked for eight at a time, in plain C++.
#ifndef UTIL_WORD_SCAN_H_
#define UTIL_WORD_SCAN_H_

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace velmohelp {

/// Eight bytes, the first one lowest.
using Word = std::uint64_t;

inline Word LoadWord(const char* at) {
  Word word = 0;
  std::memcpy(&word, at, sizeof word);
  if constexpr (std::endian::native == std::endian::big) {
    word = __builtin_bswap64(word);
  }
  return word;
}

constexpr Word EightTimes(unsigned char byte) {
  return 0x0101010101010101U * byte;
}

/// Not zero when a byte is below limit, which is 128 at most. Only the first
/// mark is to be trusted: the subtraction borrows from the bytes behind it.
constexpr Word MarkBelow(Word word, unsigned char limit) {
  return (word - EightTimes(limit)) & ~word & EightTimes(0x80);
}

/// How many bytes stand before the first mark.
constexpr std::size_t FirstMarked(Word marks) {
  return static_cast<std::size_t>(std::countr_zero(marks)) / 8;
}

}  // namespace velmohelp

#endif  // UTIL_WORD_SCAN_H_
