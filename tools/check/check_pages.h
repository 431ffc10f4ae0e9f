// Checks of a content folder's pages against its help map.
#ifndef TOOLS_CHECK_CHECK_PAGES_H_
#define TOOLS_CHECK_CHECK_PAGES_H_

#include "tools/check/map_file.h"
#include "tools/check/progress.h"

namespace velmohelp::tool {

/// Appends pages and anchors that the map names and that do not exist, pages
/// without a title, and pages that no entry leads to. A page or an anchor that
/// several entries name is reported at the first of them.
void CheckPages(const MapFile& map, Progress& progress, Findings& findings);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_CHECK_PAGES_H_
