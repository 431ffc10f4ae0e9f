// A help map file as it is read.
#ifndef RESOLVE_HELP_MAP_CHUNKED_LINES_H_
#define RESOLVE_HELP_MAP_CHUNKED_LINES_H_

#include <string_view>

#include "util/file_text.h"
#include "util/input_file.h"

namespace velmohelp {

/// Hands out a file's whole lines, some at a time. A read error is thrown; the
/// lines read last are then those before the error.
class HelpMapLines {
 public:
  explicit HelpMapLines(InputFile& file) : file_(file) {}

  /// Reads the next lines in place of those before; false behind the last.
  bool Next();

  /// The lines read last; the last line of a file needs no end.
  std::string_view lines() const { return text_.bytes().substr(0, whole_); }

  /// Reads all that follow. Of the lines read last, those from rest on stay.
  void ReadRest(std::string_view rest);

 private:
  bool Read();

  InputFile& file_;
  FileText text_;
  /// How many of the text's bytes are whole lines.
  std::size_t whole_ = 0;
};

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_CHUNKED_LINES_H_
