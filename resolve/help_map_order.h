// The order of a help map's entries.
#ifndef RESOLVE_HELP_MAP_ORDER_H_
#define RESOLVE_HELP_MAP_ORDER_H_

#include <vector>

#include "resolve/help_map_text.h"

namespace velmohelp {

/// Sorts by key, bytewise; entries of one key keep their order.
void SortByKey(std::vector<HelpMapEntry>& entries);

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_ORDER_H_
