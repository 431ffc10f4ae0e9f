#include "util/unicode/code_point_block.h"
#include "util/unicode/put.h"
#include "util/unicode/squeeze_utf8.h"

namespace velmohelp::unicode {
namespace {

#ifdef VELMO_UNICODE_LANES

/// Eight values.
struct Values {
  VELMO_INLINE explicit Values(const ITEMUTF32* from)
      : pair{Load<Longs>(from), Load<Longs>(from + 2), Load<Longs>(from + 4),
             Load<Longs>(from + 6)} {}

  /// Whether a value has any of these bits.
  VELMO_INLINE bool Have(ITEMUTF32 bits) const {
    const Longs found = (pair[0] | pair[1] | pair[2] | pair[3]) & bits;
    return (found[0] | found[1]) != 0;
  }

  VELMO_INLINE Words First() const { return Narrowed(pair[0], pair[1]); }
  VELMO_INLINE Words Second() const { return Narrowed(pair[2], pair[3]); }
  VELMO_INLINE Units AsUnits() const { return Narrowed(First(), Second()); }

  Longs pair[4];
};

/// All but surrogates and what needs two units.
VELMO_INLINE void CopyPlain(Cursor<const ITEMUTF32>& source,
                            Cursor<ITEMUTF16>& target) {
  while (source.left() >= kUnitLanes && target.left() >= kUnitLanes) {
    const Values values(source.at());
    if (values.Have(~0xFFFFUL)) return;
    const Units units = values.AsUnits();
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
    if (first.Have(~0x7FUL) || second.Have(~0x7FUL)) return;
    Store(target.at(), Narrowed(first.AsUnits(), second.AsUnits()));
    source.Advance(kByteLanes);
    target.Advance(kByteLanes);
  }
}

VELMO_WIDE VELMO_INLINE bool HasForm(Words code_points, ITEMUTF16* /*to*/) {
  return !Any(From(code_points, 0x110000));
}
VELMO_WIDE VELMO_INLINE bool HasForm(Words /*any*/, ITEMUTF8* /*to*/) {
  return true;
}
VELMO_WIDE VELMO_INLINE Encoded Encode(Words code_points, ITEMUTF16*) {
  return ToUtf16(code_points);
}
VELMO_WIDE VELMO_INLINE Encoded Encode(Words code_points, ITEMUTF8*) {
  return ToUtf8(code_points);
}

/// All of the text but what only single steps can judge.
template <typename Unit>
VELMO_WIDE VELMO_INLINE void CopyBlocks(Cursor<const ITEMUTF32>& source,
                                        Cursor<Unit>& target) {
  constexpr std::size_t kMost = kUnitLanes * 4 / sizeof(Unit);
  while (true) {
    CopyPlain(source, target);
    if (source.left() < kUnitLanes || target.left() < kMost + kBeyond<Unit>) {
      return;
    }
    const Values values(source.at());
    if (values.Have(~0x1FFFFFUL)) return;
    const Words low = values.First();
    const Words high = values.Second();
    Unit* to = target.at();
    if constexpr (sizeof(Unit) == 1) {
      if (!values.Have(~0xFFFFUL) && !HasSurrogates(values.AsUnits())) {
        target.Advance(CopyForms(ToUtf8(values.AsUnits()), to));
        source.Advance(kUnitLanes);
        continue;
      }
    }
    if (HasSurrogates(low) || HasSurrogates(high)) return;
    if (!HasForm(low, to) || !HasForm(high, to)) return;
    const Encoded first = Encode(low, to);
    const Encoded second = Encode(high, to);
    const std::size_t units =
        KeptIn<Unit>(first.kept) + KeptIn<Unit>(second.kept);
    const Beyond beyond(to + units);
    Squeeze(first.units, first.kept, to);
    Squeeze(second.units, second.kept, to);
    beyond.PutBack();
    source.Advance(kUnitLanes);
    target.Advance(units);
  }
}

#endif

/// The blocks of both directions.
struct Kernel {
#ifdef VELMO_UNICODE_LANES
  template <typename Unit>
  VELMO_INLINE void Plain(Cursor<const ITEMUTF32>& source,
                          Cursor<Unit>& target) const {
    CopyPlain(source, target);
  }
  template <typename Unit>
  VELMO_WIDE VELMO_INLINE void Wide(Cursor<const ITEMUTF32>& source,
                                    Cursor<Unit>& target) const {
    CopyBlocks(source, target);
  }
#endif
};

struct Utf32ToUtf16 {
  bool lenient;
  /// Set when strict mode has skipped a value that is no code point.
  bool* skipped;

  static void Blocks(Cursor<const ITEMUTF32>& source,
                     Cursor<ITEMUTF16>& target) {
    RunKernel(Kernel(), source, target);
  }

  ITEMConversionResult Step(Cursor<const ITEMUTF32>& source,
                            Cursor<ITEMUTF16>& target) const {
    const ITEMUTF32 value = *source.at();
    const bool skip = !lenient && value > kLastCodePoint && !target.empty();
    *skipped = *skipped || skip;
    const auto result =
        skip ? kConversionComplete : PutUtf16(value, lenient, target);
    if (result == kConversionComplete) source.Advance(1);
    return result;
  }
};

struct Utf32ToUtf8 {
  bool lenient;

  static void Blocks(Cursor<const ITEMUTF32>& source,
                     Cursor<ITEMUTF8>& target) {
    RunKernel(Kernel(), source, target);
  }

  ITEMConversionResult Step(Cursor<const ITEMUTF32>& source,
                            Cursor<ITEMUTF8>& target) const {
    const ITEMUTF32 value = *source.at();
    if (!lenient && IsSurrogate(value)) return kConversionSourceIllegal;
    const auto result = PutUtf8(value, target);
    if (result == kConversionComplete) source.Advance(1);
    return result;
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
  const auto result = Convert(Utf32ToUtf16{flag != 0, &skipped}, source,
                              sourceEnd, target, targetEnd);
  return result == kConversionComplete && skipped ? kConversionSourceIllegal
                                                  : result;
}

ITEMConversionResult ITEMConvertUTF32toUTF8(const ITEMUTF32** source,
                                            const ITEMUTF32* sourceEnd,
                                            ITEMUTF8** target,
                                            ITEMUTF8* targetEnd, int flag) {
  return Convert(Utf32ToUtf8{flag != 0}, source, sourceEnd, target, targetEnd);
}
