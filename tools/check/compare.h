// Checks of help maps against what others name.
#ifndef TOOLS_CHECK_COMPARE_H_
#define TOOLS_CHECK_COMPARE_H_

#include <filesystem>
#include <memory>
#include <vector>

#include "tools/check/map_file.h"

namespace velmohelp::tool {

using MapFiles = std::vector<std::unique_ptr<MapFile>>;

/// Appends the page ids of a file, one per line, that no map has. Throws
/// FileError when the file cannot be read.
void CheckIds(const std::filesystem::path& ids, const MapFiles& maps,
              Findings& findings);

/// Appends the ids of an earlier version's maps that no map has now.
void CheckAgainst(const MapFiles& earlier, const MapFiles& maps,
                  Findings& findings);

/// Appends the ids and pages that a map lacks and one that differs in the
/// locale of its path alone has. Throws FileError when no two maps do.
void CheckLocales(const MapFiles& maps, Findings& findings);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_COMPARE_H_
