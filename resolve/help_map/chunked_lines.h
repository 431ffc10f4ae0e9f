// A help map file, read in chunks of whole lines.
#ifndef RESOLVE_HELP_MAP_CHUNKED_LINES_H_
#define RESOLVE_HELP_MAP_CHUNKED_LINES_H_

#include <string_view>

#include "util/file_text.h"
#include "util/input_file.h"

namespace velmohelp {

/// Reads a file chunk by chunk. A chunk ends with a whole line:
///
///   buffer   |a\tb\n c\td\n|e\tf|          lines() | begun line
///   Next()   |e\tf\n g\th\n|               begun line moved to the front
///
/// A read error is thrown; lines() are then the whole lines before the error.
class ChunkedLines {
 public:
  explicit ChunkedLines(InputFile& file) : file_(file) {}

  /// Replaces the chunk by the next one; false at the end of the file.
  bool Next();

  /// The current chunk. The last line of a file needs no line end.
  std::string_view lines() const { return text_.bytes().substr(0, whole_); }

  /// Makes the chunk consist of its own end from rest on and of everything that
  /// follows in the file.
  void ReadRest(std::string_view rest);

 private:
  bool Read();

  InputFile& file_;
  FileText text_;
  /// The size of the whole lines at the start of text_.
  std::size_t whole_ = 0;
};

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_CHUNKED_LINES_H_
