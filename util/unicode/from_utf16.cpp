#include "util/unicode/compress_utf8.h"
#include "util/unicode/convert.h"
#include "util/unicode/decode.h"
#include "util/unicode/encode.h"
#include "util/unicode/utf16_block.h"

namespace velmohelp::unicode {
namespace {

#ifdef VELMO_UNICODE_LANES

/// ASCII, two blocks at a time.
VELMO_INLINE void CopyPlain(Cursor<const ITEMUTF16>& source,
                            Cursor<ITEMUTF8>& target) {
  while (source.left() >= kByteLanes && target.left() >= kByteLanes) {
    const auto first = Load<U16x8>(source.at());
    const auto second = Load<U16x8>(source.at() + kUnitLanes);
    if (Any(((first | second) & 0xFF80) != 0)) return;
    Store(target.at(), Narrow(first, second));
    source.Advance(kByteLanes);
    target.Advance(kByteLanes);
  }
}

/// Blocks without surrogates.
VELMO_INLINE void CopyPlain(Cursor<const ITEMUTF16>& source,
                            Cursor<ITEMUTF32>& target) {
  while (source.left() >= kUnitLanes && target.left() >= kUnitLanes) {
    const auto units = Load<U16x8>(source.at());
    if (HasSurrogates(units)) return;
    StoreWidened(target.at(), units);
    source.Advance(kUnitLanes);
    target.Advance(kUnitLanes);
  }
}

/// Returns how many target units it wrote.
VELMO_BMI2 VELMO_INLINE std::size_t WriteBlock(const Utf16Block& block,
                                               ITEMUTF8* to) {
  return WriteUtf8(
      HasSurrogates(block.unit) ? ToUtf8(block) : ToUtf8(block.unit), to);
}

VELMO_BMI2 VELMO_INLINE std::size_t WriteBlock(const Utf16Block& block,
                                               ITEMUTF32* to) {
  const Utf16Values v = CodePoints(block);
  const std::size_t units = Kept<ITEMUTF16>(v.mask);
  const SavedOvershoot overshoot(to + units);
  CompressWidened(v.low, v.high, v.mask, to);
  overshoot.Restore();
  return units;
}

/// The most target units that a block becomes.
template <typename Unit>
inline constexpr std::size_t kMost = kUnitLanes*(sizeof(Unit) == 1 ? 3 : 1);

/// Stops at a lone surrogate, which single steps have to judge.
template <typename Unit>
VELMO_BMI2 VELMO_INLINE void ConvertBlocks(Cursor<const ITEMUTF16>& source,
                                           Cursor<Unit>& target) {
  while (true) {
    CopyPlain(source, target);
    if (source.left() < kUnitLanes ||
        target.left() < kMost<Unit> + kOvershoot<Unit>) {
      return;
    }
    const Utf16Block block(Load<U16x8>(source.at()));
    if (!IsPaired(block)) return;
    target.Advance(WriteBlock(block, target.at()));
    source.Advance(WholeCharacters(block));
  }
}

#endif

/// The direction from UTF-16 to UTF-8 or UTF-32.
template <typename Unit>
struct FromUtf16 {
  bool lenient;

#ifdef VELMO_UNICODE_LANES
  VELMO_INLINE static void Sse2(Cursor<const ITEMUTF16>& source,
                                Cursor<Unit>& target) {
    CopyPlain(source, target);
  }
  VELMO_BMI2 VELMO_INLINE static void Bmi2(Cursor<const ITEMUTF16>& source,
                                           Cursor<Unit>& target) {
    ConvertBlocks(source, target);
  }
#endif

  Decoded Decode(const Cursor<const ITEMUTF16>& source) const {
    return DecodeUtf16(source, lenient);
  }
  static ITEMConversionResult Encode(ITEMUTF32 value, Cursor<Unit>& target) {
    if constexpr (sizeof(Unit) == 1) {
      return EncodeUtf8(value, target);
    } else {
      return EncodeUtf32(value, target);
    }
  }
};

}  // namespace
}  // namespace velmohelp::unicode

using velmohelp::unicode::Convert;
using velmohelp::unicode::FromUtf16;

ITEMConversionResult ITEMConvertUTF16toUTF8(const ITEMUTF16** source,
                                            const ITEMUTF16* sourceEnd,
                                            ITEMUTF8** target,
                                            ITEMUTF8* targetEnd, int flag) {
  return Convert(FromUtf16<ITEMUTF8>{flag != 0}, source, sourceEnd, target,
                 targetEnd);
}

ITEMConversionResult ITEMConvertUTF16toUTF32(const ITEMUTF16** source,
                                             const ITEMUTF16* sourceEnd,
                                             ITEMUTF32** target,
                                             ITEMUTF32* targetEnd, int flag) {
  return Convert(FromUtf16<ITEMUTF32>{flag != 0}, source, sourceEnd, target,
                 targetEnd);
}
