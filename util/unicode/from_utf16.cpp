#include "util/unicode/put.h"
#include "util/unicode/squeeze_utf8.h"
#include "util/unicode/take.h"
#include "util/unicode/utf16_block.h"

namespace velmohelp::unicode {
namespace {

#ifdef VELMO_UNICODE_LANES

/// ASCII, two blocks at a time.
VELMO_INLINE void CopyPlain(Cursor<const ITEMUTF16>& source,
                            Cursor<ITEMUTF8>& target) {
  while (source.left() >= kByteLanes && target.left() >= kByteLanes) {
    const auto first = Load<Units>(source.at());
    const auto second = Load<Units>(source.at() + kUnitLanes);
    if (Any(((first | second) & 0xFF80) != 0)) return;
    Store(target.at(), Narrowed(first, second));
    source.Advance(kByteLanes);
    target.Advance(kByteLanes);
  }
}

/// All but surrogates.
VELMO_INLINE void CopyPlain(Cursor<const ITEMUTF16>& source,
                            Cursor<ITEMUTF32>& target) {
  while (source.left() >= kUnitLanes && target.left() >= kUnitLanes) {
    const auto units = Load<Units>(source.at());
    if (HasSurrogates(units)) return;
    StoreWidened(target.at(), units);
    source.Advance(kUnitLanes);
    target.Advance(kUnitLanes);
  }
}

VELMO_WIDE VELMO_INLINE std::size_t CopyBlock(const Utf16Block& block,
                                              ITEMUTF8* to) {
  return CopyForms(
      HasSurrogates(block.unit) ? ToUtf8(block) : ToUtf8(block.unit), to);
}

VELMO_WIDE VELMO_INLINE std::size_t CopyBlock(const Utf16Block& block,
                                              ITEMUTF32* to) {
  const Utf16Values v = CodePoints(block);
  const std::size_t units = KeptIn<ITEMUTF16>(v.kept);
  const Beyond beyond(to + units);
  SqueezeWide(v.low, v.high, v.kept, to);
  beyond.PutBack();
  return units;
}

/// The most units that a block becomes.
template <typename Unit>
inline constexpr std::size_t kMost = kUnitLanes*(sizeof(Unit) == 1 ? 3 : 1);

/// All of the text but what only single steps can judge.
template <typename Unit>
VELMO_WIDE VELMO_INLINE void CopyBlocks(Cursor<const ITEMUTF16>& source,
                                        Cursor<Unit>& target) {
  while (true) {
    CopyPlain(source, target);
    if (source.left() < kUnitLanes ||
        target.left() < kMost<Unit> + kBeyond<Unit>) {
      return;
    }
    const Utf16Block block(Load<Units>(source.at()));
    if (!IsPaired(block)) return;
    target.Advance(CopyBlock(block, target.at()));
    source.Advance(WholeCharacters(block));
  }
}

#endif

/// The blocks of both directions.
struct Kernel {
#ifdef VELMO_UNICODE_LANES
  template <typename Unit>
  VELMO_INLINE void Plain(Cursor<const ITEMUTF16>& source,
                          Cursor<Unit>& target) const {
    CopyPlain(source, target);
  }
  template <typename Unit>
  VELMO_WIDE VELMO_INLINE void Wide(Cursor<const ITEMUTF16>& source,
                                    Cursor<Unit>& target) const {
    CopyBlocks(source, target);
  }
#endif
};

struct Utf16ToUtf8 {
  bool lenient;

  static void Blocks(Cursor<const ITEMUTF16>& source,
                     Cursor<ITEMUTF8>& target) {
    RunKernel(Kernel(), source, target);
  }

  ITEMConversionResult Step(Cursor<const ITEMUTF16>& source,
                            Cursor<ITEMUTF8>& target) const {
    const Taken character = TakeUtf16(source, lenient);
    if (character.result != kConversionComplete) return character.result;
    const auto result = PutUtf8(character.value, target);
    if (result == kConversionComplete) source.Advance(character.units);
    return result;
  }
};

struct Utf16ToUtf32 {
  bool lenient;

  static void Blocks(Cursor<const ITEMUTF16>& source,
                     Cursor<ITEMUTF32>& target) {
    RunKernel(Kernel(), source, target);
  }

  ITEMConversionResult Step(Cursor<const ITEMUTF16>& source,
                            Cursor<ITEMUTF32>& target) const {
    const Taken character = TakeUtf16(source, lenient);
    if (character.result != kConversionComplete) return character.result;
    const auto result = PutUtf32(character.value, target);
    if (result == kConversionComplete) source.Advance(character.units);
    return result;
  }
};

}  // namespace
}  // namespace velmohelp::unicode

using velmohelp::unicode::Convert;
using velmohelp::unicode::Utf16ToUtf32;
using velmohelp::unicode::Utf16ToUtf8;

ITEMConversionResult ITEMConvertUTF16toUTF8(const ITEMUTF16** source,
                                            const ITEMUTF16* sourceEnd,
                                            ITEMUTF8** target,
                                            ITEMUTF8* targetEnd, int flag) {
  return Convert(Utf16ToUtf8{flag != 0}, source, sourceEnd, target, targetEnd);
}

ITEMConversionResult ITEMConvertUTF16toUTF32(const ITEMUTF16** source,
                                             const ITEMUTF16* sourceEnd,
                                             ITEMUTF32** target,
                                             ITEMUTF32* targetEnd, int flag) {
  return Convert(Utf16ToUtf32{flag != 0}, source, sourceEnd, target, targetEnd);
}
