#include "util/unicode/legality.h"

#include "util/unicode/code_points.h"
#include "util/unicode/cursor.h"
#include "util/unicode/utf8_block.h"

namespace velmohelp::unicode {
namespace {

/// Moves over legal text, as far as whole blocks go. Text that is not legal
/// stops it before or in the block.
void SkipBlocks([[maybe_unused]] Cursor<const ITEMUTF8>& source) {
#ifdef VELMO_UNICODE_LANES
  while (source.left() >= kByteLanes) {
    const auto bytes = Load<Bytes>(source.at());
    if (!Any(bytes)) {
      source.Advance(kByteLanes);
      continue;
    }
    if (!IsLegal(Utf8Block(bytes))) return;
    source.Advance(WholeCharacters(source.at()));
  }
#endif
}

bool AreLegal(Cursor<const ITEMUTF8> source) {
  SkipBlocks(source);
  while (!source.empty()) {
    const std::size_t trailing = TrailingBytes(*source.at());
    if (trailing >= source.left() || !IsLegalSequence(source.at())) {
      return false;
    }
    source.Advance(trailing + 1);
  }
  return true;
}

}  // namespace
}  // namespace velmohelp::unicode

using velmohelp::unicode::AreLegal;
using velmohelp::unicode::Cursor;
using velmohelp::unicode::IsLegalSequence;
using velmohelp::unicode::TrailingBytes;

bool ITEMisLegalUTF8Sequence(const ITEMUTF8* source,
                             const ITEMUTF8* sourceEnd) {
  const Cursor<const ITEMUTF8> range(source, sourceEnd);
  return !range.empty() && TrailingBytes(*source) < range.left() &&
         IsLegalSequence(source);
}

bool ITEMisLegalUTF8String(const ITEMUTF8* source, const ITEMUTF8* sourceEnd) {
  const Cursor<const ITEMUTF8> range(source, sourceEnd);
  return range.empty() ? source == sourceEnd : AreLegal(range);
}
