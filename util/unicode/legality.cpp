#include "util/unicode/legality.h"

#include "util/unicode/code_points.h"
#include "util/unicode/cursor.h"
#include "util/unicode/utf8_block.h"

namespace velmohelp::unicode {
namespace {

/// Moves over whole blocks of legal text. Stops where a block is not legal: the
/// single steps then stop at the sequence itself.
void SkipBlocks([[maybe_unused]] Cursor<const ITEMUTF8>& source) {
#ifdef VELMO_UNICODE_LANES
  while (source.left() >= kByteLanes) {
    const auto bytes = Load<U8x16>(source.at());
    if (!Any(bytes)) {
      source.Advance(kByteLanes);
      continue;
    }
    if (!IsLegal(Utf8Block(bytes))) return;
    source.Advance(WholeCharacters(source.at()));
  }
#endif
}

/// Whether the source, which is not empty, begins with a whole legal sequence.
bool BeginsLegally(const Cursor<const ITEMUTF8>& source) {
  return TrailingBytes(*source.at()) < source.left() &&
         IsLegalSequence(source.at());
}

}  // namespace

bool IsLegalUtf8(const ITEMUTF8* first, const ITEMUTF8* last) {
  Cursor<const ITEMUTF8> source(first, last);
  if (source.empty()) return first == last;
  SkipBlocks(source);
  while (!source.empty()) {
    if (!BeginsLegally(source)) return false;
    source.Advance(TrailingBytes(*source.at()) + 1);
  }
  return true;
}

}  // namespace velmohelp::unicode

bool ITEMisLegalUTF8Sequence(const ITEMUTF8* source,
                             const ITEMUTF8* sourceEnd) {
  const velmohelp::unicode::Cursor<const ITEMUTF8> range(source, sourceEnd);
  return !range.empty() && velmohelp::unicode::BeginsLegally(range);
}

bool ITEMisLegalUTF8String(const ITEMUTF8* source, const ITEMUTF8* sourceEnd) {
  return velmohelp::unicode::IsLegalUtf8(source, sourceEnd);
}
