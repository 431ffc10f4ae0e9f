// Writing the lanes that hold something, one behind the other.
#ifndef UTIL_UNICODE_SQUEEZE_H_
#define UTIL_UNICODE_SQUEEZE_H_

#include <velmohelp/unicode.h>

#include "util/unicode/cursor.h"
#include "util/unicode/lanes.h"

namespace velmohelp::unicode {

// A kernel converts as many whole blocks as it can:
//   Plain(source, target): those that every x86-64 can;
//   Wide(source, target): all, with VELMO_WIDE.

#ifdef VELMO_UNICODE_LANES

/// Whether the instructions of VELMO_WIDE are there, and quick: AMD's family
/// 17h takes hundreds of cycles for the one that Squeeze is built on.
/// VELMO_UNICODE_PLAIN is for the tests of a processor that has not.
inline bool HasWideInstructions() {
#ifdef VELMO_UNICODE_PLAIN
  return false;
#else
  return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi2") &&
         !__builtin_cpu_is("amdfam17h");
#endif
}

/// The most that one write reaches beyond the units that it is for. Squeezing
/// needs room for all lanes and this.
template <typename Unit>
inline constexpr std::size_t kBeyond = sizeof(Unit) == 8 ? 4 : 8 / sizeof(Unit);

/// Target units that the writes of a block reach, but that are not its own.
template <typename Unit>
class Beyond {
 public:
  VELMO_INLINE explicit Beyond(Unit* end) : end_(end) {
    std::memcpy(units_, end, sizeof units_);
  }
  VELMO_INLINE void PutBack() const {
    std::memcpy(end_, units_, sizeof units_);
  }

 private:
  Unit* end_;
  Unit units_[kBeyond<Unit>];
};

/// How many units of this width a mask keeps.
template <typename Unit>
VELMO_WIDE VELMO_INLINE std::size_t Kept(std::uint64_t mask) {
  return static_cast<std::size_t>(_mm_popcnt_u64(mask)) / (8 * sizeof(Unit));
}

/// The lanes as numbers of 64 bits, out of which one instruction takes the bits
/// that a mask has.
template <typename Lanes>
struct Numbers {
  VELMO_WIDE VELMO_INLINE explicit Numbers(Lanes lanes) {
    std::memcpy(number, &lanes, sizeof lanes);
  }
  static constexpr std::size_t kCount = sizeof(Lanes) / 8;
  std::uint64_t number[kCount];
};

/// How many lanes are kept.
template <typename Unit, typename Lanes>
VELMO_WIDE VELMO_INLINE std::size_t KeptIn(Lanes kept) {
  return static_cast<std::size_t>(_mm_popcnt_u32(
             static_cast<unsigned>(_mm_movemask_epi8((__m128i)kept)))) /
         sizeof(Unit);
}

/// Writes the units of the lanes where kept has ones.
template <typename Unit, typename Lanes>
VELMO_WIDE VELMO_INLINE void Squeeze(Lanes lanes, Lanes kept, Unit*& to) {
  const Numbers units(lanes);
  const Numbers masks(kept);
  for (std::size_t i = 0; i < Numbers<Lanes>::kCount; ++i) {
    const std::uint64_t taken = _pext_u64(units.number[i], masks.number[i]);
    std::memcpy(to, &taken, sizeof taken);
    to += Kept<Unit>(masks.number[i]);
  }
}

/// The same for code points, in their low and high 16 bits. Few texts have any
/// bits up there.
VELMO_WIDE VELMO_INLINE void SqueezeWide(Units low, Units high, Units kept,
                                         ITEMUTF32*& to) {
  const bool any_high = Any(high != 0);
  const Numbers lows(low);
  const Numbers highs(high);
  const Numbers masks(kept);
  for (std::size_t i = 0; i < Numbers<Units>::kCount; ++i) {
    const std::uint64_t mask = masks.number[i];
    const Longs taken = {_pext_u64(lows.number[i], mask), 0};
    Longs above = {};
    if (any_high) above[0] = _pext_u64(highs.number[i], mask);
    const Words four = FirstHalf((Units)taken, (Units)above);
    Store(to, FirstHalf(four, Words{}));
    Store(to + 2, SecondHalf(four, Words{}));
    to += Kept<ITEMUTF16>(mask);
  }
}

/// On copies of the cursors: those of the caller would be written to memory and
/// read again for every block, and each block would wait for that.
template <typename Kernel, typename Source, typename Target>
VELMO_WIDE void RunWide(Kernel kernel, Cursor<Source>& source,
                        Cursor<Target>& target) {
  auto from = source;
  auto to = target;
  kernel.Wide(from, to);
  source = from;
  target = to;
}

#endif

/// Moves both cursors over what the kernel takes on this processor.
template <typename Kernel, typename Source, typename Target>
void RunKernel([[maybe_unused]] Kernel kernel,
               [[maybe_unused]] Cursor<Source>& source,
               [[maybe_unused]] Cursor<Target>& target) {
#ifdef VELMO_UNICODE_LANES
  if (source.left() < kUnitLanes || target.left() < kUnitLanes) return;
  if (HasWideInstructions()) {
    RunWide(kernel, source, target);
  } else {
    kernel.Plain(source, target);
  }
#endif
}

}  // namespace velmohelp::unicode

#endif  // UTIL_UNICODE_SQUEEZE_H_
