// A table of page ids, as another help system keeps it.
#ifndef TOOLS_IMPORT_ID_TABLE_H_
#define TOOLS_IMPORT_ID_TABLE_H_

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmohelp::tool {

/// A page id and the page that it leads to, relative to the content folder or a
/// URL. Texts are byte strings, as the table has them.
struct IdRow {
  std::string id;
  std::string target;
  /// Where the table has it, counted from 1; 0 in a file without lines.
  std::size_t line = 0;
};

/// Something that the person who imports should know.
struct Remark {
  std::size_t line = 0;
  /// Printable.
  std::string text;
  /// The id is in the map, written in another way: nothing is lost.
  bool is_renaming = false;
};

struct IdTable {
  /// In the order of the file.
  std::vector<IdRow> rows;
  std::vector<Remark> remarks;
};

/// The file cannot be read, or is not in the format that was named.
class ImportError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace velmohelp::tool

#endif  // TOOLS_IMPORT_ID_TABLE_H_
