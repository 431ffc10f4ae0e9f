// Many units at a time, where the processor is an x86-64. Elsewhere, and with
// VELMO_UNICODE_PORTABLE, all text goes one character at a time.
#ifndef UTIL_UNICODE_LANES_H_
#define UTIL_UNICODE_LANES_H_

#if defined(__x86_64__) && !defined(VELMO_UNICODE_PORTABLE)
#define VELMO_UNICODE_LANES 1

#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Everything here is part of the loop that uses it, and is compiled with the
/// instructions that the loop may use.
#define VELMO_INLINE [[gnu::always_inline]] inline

/// For loops that are entered only where HasWideInstructions() is true. Not for
/// AVX2, though it is there: GCC would then make every constant anew for every
/// block, with three instructions where a memory operand does.
#define VELMO_WIDE [[gnu::target("avx,bmi,bmi2,popcnt")]]

namespace velmohelp::unicode {

// Arithmetic and comparisons work lane by lane; a comparison gives lanes of all
// ones or all zeros.
using Bytes = std::uint8_t __attribute__((vector_size(16)));
using Units = std::uint16_t __attribute__((vector_size(16)));
using Words = std::uint32_t __attribute__((vector_size(16)));
using Longs = std::uint64_t __attribute__((vector_size(16)));

using Signed = std::int32_t __attribute__((vector_size(16)));

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

/// Whether the topmost bit of any byte is set; for a comparison, whether it was
/// true anywhere.
template <typename Lanes>
VELMO_INLINE bool Any(Lanes lanes) {
  return _mm_movemask_epi8((__m128i)lanes) != 0;
}

/// Every lane takes the value from so many bytes before, the first ones zero.
template <int bytes, typename Lanes>
VELMO_INLINE Lanes FromBefore(Lanes lanes) {
  return (Lanes)_mm_slli_si128((__m128i)lanes, bytes);
}

/// Every lane takes the value from so many bytes behind, the last ones zero.
template <int bytes, typename Lanes>
VELMO_INLINE Lanes FromBehind(Lanes lanes) {
  return (Lanes)_mm_srli_si128((__m128i)lanes, bytes);
}

/// Unsigned; what compilers make of the operator takes twice as long.
VELMO_INLINE Bytes AtLeast(Bytes bytes, std::uint8_t bound) {
  const Bytes bounds = Bytes{} + bound;
  return (Bytes)_mm_max_epu8((__m128i)bytes, (__m128i)bounds) == bytes;
}

/// There are no shifts of bytes: those of units do, without what has come over
/// the border between two bytes.
template <int bits>
VELMO_INLINE Bytes ShiftLeft(Bytes bytes) {
  return (Bytes)((Units)bytes << bits) &
         static_cast<std::uint8_t>(0xFF << bits);
}
template <int bits>
VELMO_INLINE Bytes ShiftRight(Bytes bytes) {
  return (Bytes)((Units)bytes >> bits) &
         static_cast<std::uint8_t>(0xFF >> bits);
}

/// The first or the second half of low and high, lane for lane one wider lane.
VELMO_INLINE Units FirstHalf(Bytes low, Bytes high) {
  return (Units)_mm_unpacklo_epi8((__m128i)low, (__m128i)high);
}
VELMO_INLINE Units SecondHalf(Bytes low, Bytes high) {
  return (Units)_mm_unpackhi_epi8((__m128i)low, (__m128i)high);
}
VELMO_INLINE Words FirstHalf(Units low, Units high) {
  return (Words)_mm_unpacklo_epi16((__m128i)low, (__m128i)high);
}
VELMO_INLINE Words SecondHalf(Units low, Units high) {
  return (Words)_mm_unpackhi_epi16((__m128i)low, (__m128i)high);
}
VELMO_INLINE Longs FirstHalf(Words low, Words high) {
  return (Longs)_mm_unpacklo_epi32((__m128i)low, (__m128i)high);
}
VELMO_INLINE Longs SecondHalf(Words low, Words high) {
  return (Longs)_mm_unpackhi_epi32((__m128i)low, (__m128i)high);
}

/// The low half of each of the lanes of both; the high halves are zero.
VELMO_INLINE Bytes Narrowed(Units first, Units second) {
  return (Bytes)_mm_packus_epi16((__m128i)first, (__m128i)second);
}
/// SSE2 packs signed words only: they pass when the sign is made from bit 15.
VELMO_INLINE Units Narrowed(Words first, Words second) {
  const auto sign = [](Words w) {
    return _mm_srai_epi32((__m128i)(w << 16), 16);
  };
  return (Units)_mm_packs_epi32(sign(first), sign(second));
}
VELMO_INLINE Words Narrowed(Longs first, Longs second) {
  return (Words)_mm_shuffle_ps((__m128)first, (__m128)second, 0x88);
}

/// Writes eight units as UTF-32.
VELMO_INLINE void StoreWidened(std::uint64_t* to, Units units) {
  const Words first = FirstHalf(units, Units{});
  const Words second = SecondHalf(units, Units{});
  Store(to, FirstHalf(first, Words{}));
  Store(to + 2, SecondHalf(first, Words{}));
  Store(to + 4, FirstHalf(second, Words{}));
  Store(to + 6, SecondHalf(second, Words{}));
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_LANES_H_
