// The formats that are imported, by name.
#ifndef TOOLS_IMPORT_FORMATS_H_
#define TOOLS_IMPORT_FORMATS_H_

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tools/import/id_table.h"

namespace velmohelp::tool {

struct ImportFormat {
  std::string_view name;
  std::string_view what;
  IdTable (*read)(const std::filesystem::path& file);
};

const std::vector<ImportFormat>& ImportFormats();

/// Reads a table. Throws FileError or ImportError, with the file's name in
/// what(). format: the name of one of ImportFormats().
IdTable ReadIdTable(std::string_view format, const std::filesystem::path& file);

}  // namespace velmohelp::tool

#endif  // TOOLS_IMPORT_FORMATS_H_
