#include "util/unicode/code_point_block.h"
#include "util/unicode/compress_utf8.h"
#include "util/unicode/convert.h"
#include "util/unicode/encode.h"

namespace velmohelp::unicode {
namespace {

#ifdef VELMO_UNICODE_LANES

/// Eight values.
struct Values {
  VELMO_INLINE explicit Values(const ITEMUTF32* from)
      : pair{Load<U64x2>(from), Load<U64x2>(from + 2), Load<U64x2>(from + 4),
             Load<U64x2>(from + 6)} {}

  /// Whether a value has any of these bits.
  VELMO_INLINE bool HaveAny(ITEMUTF32 bits) const {
    const U64x2 found = (pair[0] | pair[1] | pair[2] | pair[3]) & bits;
    return (found[0] | found[1]) != 0;
  }

  // Their low 32 and 16 bits.
  VELMO_INLINE U32x4 FirstFour() const { return Narrow(pair[0], pair[1]); }
  VELMO_INLINE U32x4 SecondFour() const { return Narrow(pair[2], pair[3]); }
  VELMO_INLINE U16x8 AsUnits() const {
    return Narrow(FirstFour(), SecondFour());
  }

  U64x2 pair[4];
};

/// Blocks of values up to 0xFFFF without surrogates.
VELMO_INLINE void CopyPlain(Cursor<const ITEMUTF32>& source,
                            Cursor<ITEMUTF16>& target) {
  while (source.left() >= kUnitLanes && target.left() >= kUnitLanes) {
    const Values values(source.at());
    if (values.HaveAny(~0xFFFFUL)) return;
    const U16x8 units = values.AsUnits();
    if (HasSurrogates(units)) return;
    Store(target.at(), units);
    source.Advance(kUnitLanes);
    target.Advance(kUnitLanes);
  }
}

/// ASCII, two blocks at a time.
VELMO_INLINE void CopyPlain(Cursor<const ITEMUTF32>& source,
                            Cursor<ITEMUTF8>& target) {
  while (source.left() >= kByteLanes && target.left() >= kByteLanes) {
    const Values first(source.at());
    const Values second(source.at() + kUnitLanes);
    if (first.HaveAny(~0x7FUL) || second.HaveAny(~0x7FUL)) return;
    Store(target.at(), Narrow(first.AsUnits(), second.AsUnits()));
    source.Advance(kByteLanes);
    target.Advance(kByteLanes);
  }
}

// The form in the target's units, and whether every value has one. All values
// are below 0x200000.
VELMO_BMI2 VELMO_INLINE bool HasForm(U32x4 values, ITEMUTF16* /*to*/) {
  return !Any(AtLeast(values, 0x110000));
}
VELMO_BMI2 VELMO_INLINE bool HasForm(U32x4 /*any*/, ITEMUTF8* /*to*/) {
  return true;
}
VELMO_BMI2 VELMO_INLINE Encoded ToUnits(U32x4 values, ITEMUTF16* /*to*/) {
  return ToUtf16(values);
}
VELMO_BMI2 VELMO_INLINE Encoded ToUnits(U32x4 values, ITEMUTF8* /*to*/) {
  return ToUtf8(values);
}

/// Stops at a surrogate and at a value that the target has no form for: single
/// steps have to judge both.
template <typename Unit>
VELMO_BMI2 VELMO_INLINE void ConvertBlocks(Cursor<const ITEMUTF32>& source,
                                           Cursor<Unit>& target) {
  constexpr std::size_t kMost = kUnitLanes * 4 / sizeof(Unit);
  while (true) {
    CopyPlain(source, target);
    if (source.left() < kUnitLanes ||
        target.left() < kMost + kOvershoot<Unit>) {
      return;
    }
    const Values values(source.at());
    if (values.HaveAny(~0x1FFFFFUL)) return;
    const U32x4 low = values.FirstFour();
    const U32x4 high = values.SecondFour();
    Unit* to = target.at();
    if constexpr (sizeof(Unit) == 1) {
      if (!values.HaveAny(~0xFFFFUL) && !HasSurrogates(values.AsUnits())) {
        target.Advance(WriteUtf8(ToUtf8(values.AsUnits()), to));
        source.Advance(kUnitLanes);
        continue;
      }
    }
    if (HasSurrogates(low) || HasSurrogates(high)) return;
    if (!HasForm(low, to) || !HasForm(high, to)) return;
    const Encoded first = ToUnits(low, to);
    const Encoded second = ToUnits(high, to);
    const std::size_t units = Kept<Unit>(first.mask) + Kept<Unit>(second.mask);
    const SavedOvershoot overshoot(to + units);
    Compress(first.units, first.mask, to);
    Compress(second.units, second.mask, to);
    overshoot.Restore();
    source.Advance(kUnitLanes);
    target.Advance(units);
  }
}

#endif

/// What both directions from UTF-32 share.
template <typename Unit>
struct FromUtf32 {
  bool lenient;

#ifdef VELMO_UNICODE_LANES
  VELMO_INLINE static void Sse2(Cursor<const ITEMUTF32>& source,
                                Cursor<Unit>& target) {
    CopyPlain(source, target);
  }
  VELMO_BMI2 VELMO_INLINE static void Bmi2(Cursor<const ITEMUTF32>& source,
                                           Cursor<Unit>& target) {
    ConvertBlocks(source, target);
  }
#endif
};

struct Utf32ToUtf8 : FromUtf32<ITEMUTF8> {
  Decoded Decode(const Cursor<const ITEMUTF32>& source) const {
    if (!lenient && IsSurrogate(*source.at())) {
      return {.result = kConversionSourceIllegal};
    }
    return {.value = *source.at()};
  }
  static ITEMConversionResult Encode(ITEMUTF32 value,
                                     Cursor<ITEMUTF8>& target) {
    return EncodeUtf8(value, target);
  }
};

struct Utf32ToUtf16 : FromUtf32<ITEMUTF16> {
  /// Set when strict mode has skipped a value above 0x10FFFF.
  bool* skipped;

  static Decoded Decode(const Cursor<const ITEMUTF32>& source) {
    return {.value = *source.at()};
  }
  /// Skipping a value needs room for one unit too, though it uses none: the
  /// room is looked for before the value is.
  ITEMConversionResult Encode(ITEMUTF32 value,
                              Cursor<ITEMUTF16>& target) const {
    if (lenient || value <= kLastCodePoint || target.empty()) {
      return EncodeUtf16(value, lenient, target);
    }
    *skipped = true;
    return kConversionComplete;
  }
};

}  // namespace
}  // namespace velmohelp::unicode

using velmohelp::unicode::Convert;
using velmohelp::unicode::Utf32ToUtf16;
using velmohelp::unicode::Utf32ToUtf8;

ITEMConversionResult ITEMConvertUTF32toUTF16(const ITEMUTF32** source,
                                             const ITEMUTF32* sourceEnd,
                                             ITEMUTF16** target,
                                             ITEMUTF16* targetEnd, int flag) {
  bool skipped = false;
  const auto result = Convert(Utf32ToUtf16{{flag != 0}, &skipped}, source,
                              sourceEnd, target, targetEnd);
  return result == kConversionComplete && skipped ? kConversionSourceIllegal
                                                  : result;
}

ITEMConversionResult ITEMConvertUTF32toUTF8(const ITEMUTF32** source,
                                            const ITEMUTF32* sourceEnd,
                                            ITEMUTF8** target,
                                            ITEMUTF8* targetEnd, int flag) {
  return Convert(Utf32ToUtf8{{flag != 0}}, source, sourceEnd, target,
                 targetEnd);
}
