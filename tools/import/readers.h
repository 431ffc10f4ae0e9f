// Readers of other help systems' tables. Each throws ImportError for input that
// is not in its format; a row that it cannot use becomes a remark.
#ifndef TOOLS_IMPORT_READERS_H_
#define TOOLS_IMPORT_READERS_H_

#include <filesystem>
#include <string_view>

#include "tools/import/id_table.h"

namespace velmohelp::tool {

/// One row per line: id, tab, target; further fields are ignored. No quoting.
IdTable ReadTabSeparated(std::string_view text);

/// RFC 4180: fields separated by commas, quoted where they hold a comma, a
/// quote or a line end. The first two fields are id and target.
IdTable ReadCommaSeparated(std::string_view text);

/// GIMP's gimp-help.xml: <help-item id="..." ref="..."/>.
IdTable ReadGimpHelp(std::string_view xml);

/// Qt's help project: <keyword id="..." ref="..."/> of its filter sections.
IdTable ReadQtHelpProject(std::string_view xml);

/// Qt's compressed help, an SQLite database. The file is opened for reading
/// only, and nothing is written beside it.
IdTable ReadQtCompressedHelp(const std::filesystem::path& file);

/// An HTML Help project ([MAP] and [ALIAS] sections), or a C header that
/// defines ids as numbers. An alias is a row for the name, and another one for
/// its number where [MAP] or a header gives it. #include is followed to files
/// of the project's own folder and below.
IdTable ReadHtmlHelp(const std::filesystem::path& file);

/// A JavaScript table of the form 'id':'page#anchor', one pair per line or
/// many.
IdTable ReadHid2File(std::string_view script);

}  // namespace velmohelp::tool

#endif  // TOOLS_IMPORT_READERS_H_
