#include "util/unicode/put.h"
#include "util/unicode/take.h"

namespace velmohelp::unicode {
namespace {

struct Utf16ToUtf8 {
  bool lenient;

  void Blocks(Cursor<const ITEMUTF16>&, Cursor<ITEMUTF8>&) const {}

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

  void Blocks(Cursor<const ITEMUTF16>&, Cursor<ITEMUTF32>&) const {}

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
