// Vectors of 16 bytes, on x86-64. Elsewhere, and with VELMO_UNICODE_PORTABLE,
// there are none and every character is converted in a step of its own.
//
// All diagrams here and in the blocks show lane 0, which is the lowest address,
// on the left.
#ifndef UTIL_UNICODE_LANES_H_
#define UTIL_UNICODE_LANES_H_

#if defined(__x86_64__) && !defined(VELMO_UNICODE_PORTABLE)
#define VELMO_UNICODE_LANES 1

#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

/// A function that becomes part of the loop that calls it, so that it is
/// compiled with the instructions that the loop may use.
#define VELMO_INLINE [[gnu::always_inline]] inline

/// Only for code that runs where HasFastBmi2() is true. It leaves AVX2 out,
/// which is there too: GCC would build every constant again for each block,
/// with three instructions in place of one memory operand.
#define VELMO_BMI2 [[gnu::target("avx,bmi,bmi2,popcnt")]]

namespace velmohelp::unicode {

// Operators work lane by lane. A comparison gives a mask: all ones in the lanes
// where it is true, all zeros in the others.
using U8x16 = std::uint8_t __attribute__((vector_size(16)));
using U16x8 = std::uint16_t __attribute__((vector_size(16)));
using U32x4 = std::uint32_t __attribute__((vector_size(16)));
using U64x2 = std::uint64_t __attribute__((vector_size(16)));

using I32x4 = std::int32_t __attribute__((vector_size(16)));

inline constexpr std::size_t kByteLanes = 16;
inline constexpr std::size_t kUnitLanes = 8;

template <typename Lanes>
VELMO_INLINE Lanes Load(const void* from) {
  return (Lanes)_mm_loadu_si128(static_cast<const __m128i*>(from));
}

template <typename Lanes>
VELMO_INLINE void Store(void* to, Lanes lanes) {
  _mm_storeu_si128(static_cast<__m128i*>(to), (__m128i)lanes);
}

/// Whether any byte has its top bit set. Of a mask: whether it has any ones. Of
/// text: whether a byte is not ASCII.
template <typename Lanes>
VELMO_INLINE bool Any(Lanes lanes) {
  return _mm_movemask_epi8((__m128i)lanes) != 0;
}

/// Moves every byte up by this many bytes; zeros come in at the bottom. Each
/// lane then holds what preceded it:
///     a b c d ... o p   up by 1   0 a b c ... n o
template <int bytes, typename Lanes>
VELMO_INLINE Lanes ShiftLanesUp(Lanes lanes) {
  return (Lanes)_mm_slli_si128((__m128i)lanes, bytes);
}

/// Moves every byte down; zeros come in at the top. Each lane then holds what
/// followed it:
///     a b c d ... o p   down by 1   b c d e ... p 0
template <int bytes, typename Lanes>
VELMO_INLINE Lanes ShiftLanesDown(Lanes lanes) {
  return (Lanes)_mm_srli_si128((__m128i)lanes, bytes);
}

/// Unsigned. The maximum equals the byte where the byte is at least the bound;
/// what compilers make of the operator takes twice as long.
VELMO_INLINE U8x16 AtLeast(U8x16 bytes, std::uint8_t bound) {
  const U8x16 bounds = U8x16{} + bound;
  return (U8x16)_mm_max_epu8((__m128i)bytes, (__m128i)bounds) == bytes;
}

/// Bits within each byte. x86 shifts no lanes of 8 bits, so this shifts lanes
/// of 16 and clears the bits that came across from the neighbouring byte.
template <int bits>
VELMO_INLINE U8x16 ShiftBitsLeft(U8x16 bytes) {
  return (U8x16)((U16x8)bytes << bits) &
         static_cast<std::uint8_t>(0xFF << bits);
}
template <int bits>
VELMO_INLINE U8x16 ShiftBitsRight(U8x16 bytes) {
  return (U8x16)((U16x8)bytes >> bits) &
         static_cast<std::uint8_t>(0xFF >> bits);
}

/// Interleaves the lower (or the upper) half of the lanes of both. Read as
/// lanes of twice the width, each has its low part from `low`:
///     low    a b c d | e f g h
///     high   A B C D | E F G H
///     InterleaveLow    aA bB cC dD
///     InterleaveHigh   eE fF gG hH
VELMO_INLINE U16x8 InterleaveLow(U8x16 low, U8x16 high) {
  return (U16x8)_mm_unpacklo_epi8((__m128i)low, (__m128i)high);
}
VELMO_INLINE U16x8 InterleaveHigh(U8x16 low, U8x16 high) {
  return (U16x8)_mm_unpackhi_epi8((__m128i)low, (__m128i)high);
}
VELMO_INLINE U32x4 InterleaveLow(U16x8 low, U16x8 high) {
  return (U32x4)_mm_unpacklo_epi16((__m128i)low, (__m128i)high);
}
VELMO_INLINE U32x4 InterleaveHigh(U16x8 low, U16x8 high) {
  return (U32x4)_mm_unpackhi_epi16((__m128i)low, (__m128i)high);
}
VELMO_INLINE U64x2 InterleaveLow(U32x4 low, U32x4 high) {
  return (U64x2)_mm_unpacklo_epi32((__m128i)low, (__m128i)high);
}
VELMO_INLINE U64x2 InterleaveHigh(U32x4 low, U32x4 high) {
  return (U64x2)_mm_unpackhi_epi32((__m128i)low, (__m128i)high);
}

/// The lanes of both with half the width, those of `first` first. The upper
/// half of each lane is zero beforehand.
VELMO_INLINE U8x16 Narrow(U16x8 first, U16x8 second) {
  return (U8x16)_mm_packus_epi16((__m128i)first, (__m128i)second);
}
/// SSE2 saturates signed words: a lane passes unchanged when the bits above its
/// bit 15 are copies of that bit.
VELMO_INLINE U16x8 Narrow(U32x4 first, U32x4 second) {
  const auto sign_extend = [](U32x4 w) {
    return _mm_srai_epi32((__m128i)(w << 16), 16);
  };
  return (U16x8)_mm_packs_epi32(sign_extend(first), sign_extend(second));
}
VELMO_INLINE U32x4 Narrow(U64x2 first, U64x2 second) {
  return (U32x4)_mm_shuffle_ps((__m128)first, (__m128)second, 0x88);
}

/// Writes eight units as UTF-32, zero-extended.
VELMO_INLINE void StoreWidened(std::uint64_t* to, U16x8 units) {
  const U32x4 first = InterleaveLow(units, U16x8{});
  const U32x4 second = InterleaveHigh(units, U16x8{});
  Store(to, InterleaveLow(first, U32x4{}));
  Store(to + 2, InterleaveHigh(first, U32x4{}));
  Store(to + 4, InterleaveLow(second, U32x4{}));
  Store(to + 6, InterleaveHigh(second, U32x4{}));
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_LANES_H_
