#include "util/unicode/put.h"
#include "util/unicode/take.h"

namespace velmohelp::unicode {
namespace {

struct Utf32ToUtf16 {
  bool lenient;
  /// Set when strict mode has skipped a value that is no code point.
  bool* skipped;

  void Blocks(Cursor<const ITEMUTF32>&, Cursor<ITEMUTF16>&) const {}

  ITEMConversionResult Step(Cursor<const ITEMUTF32>& source,
                            Cursor<ITEMUTF16>& target) const {
    const ITEMUTF32 value = *source.at();
    const bool skip = !lenient && value > kLastCodePoint;
    *skipped = *skipped || skip;
    const auto result =
        skip ? kConversionComplete : PutUtf16(value, lenient, target);
    if (result == kConversionComplete) source.Advance(1);
    return result;
  }
};

struct Utf32ToUtf8 {
  bool lenient;

  void Blocks(Cursor<const ITEMUTF32>&, Cursor<ITEMUTF8>&) const {}

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
