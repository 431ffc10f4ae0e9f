// A help map from a table of ids.
#ifndef TOOLS_IMPORT_HELP_MAP_TEXT_H_
#define TOOLS_IMPORT_HELP_MAP_TEXT_H_

#include <string>

#include "tools/import/id_table.h"

namespace velmohelp::tool {

/// What becomes of a second id that leads to a key which another one has, and
/// to another page: the client would never see it.
enum class OnCollision { kFirst, kError };

struct HelpMapOptions {
  /// The page of the entry VX_HOME, relative to the content folder.
  std::string home;
  /// Stands before each target that is not a URL: "html/".
  std::string prefix = {};
  OnCollision on_collision = OnCollision::kFirst;
};

struct HelpMapText {
  /// What a helpmap.txt holds: the home entry first, then one entry per key.
  std::string text;
  std::size_t entries = 0;
  /// What had to be changed or left out.
  std::vector<Remark> remarks;
};

/// Throws ImportError at the first collision when options say so, and for a
/// home page that a map cannot hold.
HelpMapText WriteHelpMap(const IdTable& table, const HelpMapOptions& options);

}  // namespace velmohelp::tool

#endif  // TOOLS_IMPORT_HELP_MAP_TEXT_H_
