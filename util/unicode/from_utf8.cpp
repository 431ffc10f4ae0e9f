#include "util/unicode/put.h"
#include "util/unicode/take.h"

namespace velmohelp::unicode {
namespace {

struct Utf8ToUtf16 {
  bool lenient;

  void Blocks(Cursor<const ITEMUTF8>&, Cursor<ITEMUTF16>&) const {}

  ITEMConversionResult Step(Cursor<const ITEMUTF8>& source,
                            Cursor<ITEMUTF16>& target) const {
    const Taken character = TakeUtf8(source);
    if (character.result != kConversionComplete) return character.result;
    const auto result = PutUtf16(character.value, lenient, target);
    if (result == kConversionComplete) source.Advance(character.units);
    return result;
  }
};

struct Utf8ToUtf32 {
  void Blocks(Cursor<const ITEMUTF8>&, Cursor<ITEMUTF32>&) const {}

  ITEMConversionResult Step(Cursor<const ITEMUTF8>& source,
                            Cursor<ITEMUTF32>& target) const {
    const Taken character = TakeUtf8(source);
    if (character.result != kConversionComplete) return character.result;
    const auto result = PutUtf32(character.value, target);
    if (result == kConversionComplete) source.Advance(character.units);
    return result;
  }
};

}  // namespace
}  // namespace velmohelp::unicode

using velmohelp::unicode::Convert;
using velmohelp::unicode::Utf8ToUtf16;
using velmohelp::unicode::Utf8ToUtf32;

ITEMConversionResult ITEMConvertUTF8toUTF16(const ITEMUTF8** source,
                                            const ITEMUTF8* sourceEnd,
                                            ITEMUTF16** target,
                                            ITEMUTF16* targetEnd, int flag) {
  return Convert(Utf8ToUtf16{flag != 0}, source, sourceEnd, target, targetEnd);
}

ITEMConversionResult ITEMConvertUTF8toUTF32(const ITEMUTF8** source,
                                            const ITEMUTF8* sourceEnd,
                                            ITEMUTF32** target,
                                            ITEMUTF32* targetEnd,
                                            int /*flag*/) {
  return Convert(Utf8ToUtf32{}, source, sourceEnd, target, targetEnd);
}
