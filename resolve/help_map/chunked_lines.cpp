#include "resolve/help_map/chunked_lines.h"

#include <algorithm>
#include <ios>

#include "resolve/help_map/entry_parser.h"

namespace velmohelp {

bool ChunkedLines::Next() {
  text_.KeepLast(text_.bytes().size() - whole_);
  whole_ = 0;
  while (whole_ == 0 && Read()) continue;
  return whole_ > 0;
}

void ChunkedLines::ReadRest(std::string_view rest) {
  text_.KeepLast(text_.bytes().size() - whole_ + rest.size());
  whole_ = rest.size();
  text_.Reserve(file_.size() + FileText::kPieceSize);
  while (Read()) continue;
}

/// Looks for a line end only in the new bytes: a line may be as long as the
/// file, and looking at all of it after each read would be quadratic.
bool ChunkedLines::Read() {
  const std::size_t before = text_.bytes().size();
  bool more = false;
  try {
    more = text_.AppendPiece(file_);
  } catch (const std::ios_base::failure&) {
    whole_ = std::max(whole_, LinesBeforeError(text_.bytes()).size());
    throw;
  }
  const std::size_t in_piece = WholeLines(text_.bytes().substr(before)).size();
  if (in_piece > 0) whole_ = before + in_piece;
  if (!more) whole_ = text_.bytes().size();
  return more;
}

}  // namespace velmohelp
