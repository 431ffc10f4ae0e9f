// Compress: writes the lanes that a mask keeps, without gaps, by PEXT (parallel
// bit extract), eight bytes at a time:
//
//     lanes   a  b  c  d  e  f  g  h
//     mask    FF 00 FF FF 00 00 FF 00
//     PEXT    a  c  d  g  0  0  0  0     all eight bytes are stored,
//             ----------->               then the target moves on by four
//
// The next store overwrites the zeros. Those of the last one end up after the
// block's own units, where the caller's buffer may hold something already:
//
//     target  [units of the block][overshoot] ...
//
// SavedOvershoot puts that back, so that the caller sees it unchanged.
#ifndef UTIL_UNICODE_COMPRESS_H_
#define UTIL_UNICODE_COMPRESS_H_

#include <velmohelp/unicode.h>

#include "util/unicode/lanes.h"

#ifdef VELMO_UNICODE_LANES

namespace velmohelp::unicode {

/// The most units that a store reaches past the block's own. Compress needs
/// room for all lanes and these.
template <typename Unit>
inline constexpr std::size_t kOvershoot = sizeof(Unit) == 8 ? 4
                                                            : 8 / sizeof(Unit);

/// The target units past the end of a block, as they were before its stores.
template <typename Unit>
class SavedOvershoot {
 public:
  VELMO_INLINE explicit SavedOvershoot(Unit* end) : end_(end) {
    std::memcpy(units_, end, sizeof units_);
  }
  VELMO_INLINE void Restore() const {
    std::memcpy(end_, units_, sizeof units_);
  }

 private:
  Unit* end_;
  Unit units_[kOvershoot<Unit>];
};

/// The lanes as numbers of 64 bits, which is what PEXT works on.
template <typename Lanes>
struct Halves {
  VELMO_BMI2 VELMO_INLINE explicit Halves(Lanes lanes) {
    std::memcpy(number, &lanes, sizeof lanes);
  }
  static constexpr std::size_t kCount = sizeof(Lanes) / 8;
  std::uint64_t number[kCount];
};

/// How many units of this width the mask keeps of eight bytes.
template <typename Unit>
VELMO_BMI2 VELMO_INLINE std::size_t KeptOfHalf(std::uint64_t mask) {
  return static_cast<std::size_t>(_mm_popcnt_u64(mask)) / (8 * sizeof(Unit));
}

/// How many units of this width the mask keeps.
template <typename Unit, typename Lanes>
VELMO_BMI2 VELMO_INLINE std::size_t Kept(Lanes mask) {
  return static_cast<std::size_t>(_mm_popcnt_u32(
             static_cast<unsigned>(_mm_movemask_epi8((__m128i)mask)))) /
         sizeof(Unit);
}

/// Writes the units that the mask keeps and moves `to` past them.
template <typename Unit, typename Lanes>
VELMO_BMI2 VELMO_INLINE void Compress(Lanes lanes, Lanes mask, Unit*& to) {
  const Halves units(lanes);
  const Halves masks(mask);
  for (std::size_t i = 0; i < Halves<Lanes>::kCount; ++i) {
    const std::uint64_t kept = _pext_u64(units.number[i], masks.number[i]);
    std::memcpy(to, &kept, sizeof kept);
    to += KeptOfHalf<Unit>(masks.number[i]);
  }
}

/// The same for code points, given as their low and high 16 bits. Few texts
/// have any high bits, and PEXT is not spent on zeros.
VELMO_BMI2 VELMO_INLINE void CompressWidened(U16x8 low, U16x8 high, U16x8 mask,
                                             ITEMUTF32*& to) {
  const bool any_high = Any(high != 0);
  const Halves lows(low);
  const Halves highs(high);
  const Halves masks(mask);
  for (std::size_t i = 0; i < Halves<U16x8>::kCount; ++i) {
    const std::uint64_t keep = masks.number[i];
    const U64x2 kept_low = {_pext_u64(lows.number[i], keep), 0};
    U64x2 kept_high = {};
    if (any_high) kept_high[0] = _pext_u64(highs.number[i], keep);
    const U32x4 four = InterleaveLow((U16x8)kept_low, (U16x8)kept_high);
    Store(to, InterleaveLow(four, U32x4{}));
    Store(to + 2, InterleaveHigh(four, U32x4{}));
    to += KeptOfHalf<ITEMUTF16>(keep);
  }
}

}  // namespace velmohelp::unicode

#endif
#endif  // UTIL_UNICODE_COMPRESS_H_
