// From a page id to its target: a local page or a URL.
#ifndef RESOLVE_PAGE_TARGET_H_
#define RESOLVE_PAGE_TARGET_H_

#include <string>
#include <string_view>

#include "platform/machine.h"
#include "resolve/content_folders.h"
#include "resolve/fetch_budget.h"
#include "resolve/help_map/map_type.h"

namespace velmohelp {

/// Finds the target of a normalised page id. online chooses between URLs below
/// the base URL and local paths. On success out is the target, otherwise the
/// page id. help_map: becomes the help map that the search read last; stays as
/// it is when the search read none. Throws std::ios_base::failure when a help
/// map breaks while it is read.
bool FindPageTarget(Machine& machine, FetchBudget& budget,
                    const HelpContent& content, const std::string& page_id,
                    bool online, HelpMap& help_map, std::string& out);

}  // namespace velmohelp

#endif  // RESOLVE_PAGE_TARGET_H_
