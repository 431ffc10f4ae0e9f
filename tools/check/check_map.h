// Checks of a help map by itself.
#ifndef TOOLS_CHECK_CHECK_MAP_H_
#define TOOLS_CHECK_CHECK_MAP_H_

#include "tools/check/map_file.h"

namespace velmohelp::tool {

/// Appends what is wrong with the lines and keys of a map, and with its URLs.
void CheckMap(const MapFile& map, Findings& findings);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_CHECK_MAP_H_
