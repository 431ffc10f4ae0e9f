// A help map file as it is read.
#ifndef RESOLVE_HELP_MAP_CHUNKED_LINES_H_
#define RESOLVE_HELP_MAP_CHUNKED_LINES_H_

#include <istream>
#include <string_view>

#include "util/file_text.h"

namespace velmohelp {

/// Hands out a file's whole lines, some at a time. What breaks the file is
/// thrown, behind the lines that stand before.
class HelpMapLines {
 public:
  explicit HelpMapLines(std::istream& file) : file_(file) {}

  /// Reads the next lines in place of those before; false behind the last.
  bool Next();

  /// The lines read last; the last line of a file needs no end.
  std::string_view lines() const { return text_.bytes().substr(0, whole_); }

  /// Reads all that follow. Of the lines read last, those from rest on stay.
  /// size: the file's, as far as it is known.
  void ReadRest(std::string_view rest, std::size_t size);

 private:
  bool Read();

  std::istream& file_;
  FileText text_;
  /// How many of the text's bytes are whole lines.
  std::size_t whole_ = 0;
};

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_CHUNKED_LINES_H_
