// From a page id to its target: a local page or a URL.
#ifndef RESOLVE_PAGE_TARGET_H_
#define RESOLVE_PAGE_TARGET_H_

#include <string>

#include "platform/machine.h"
#include "resolve/content_folders.h"
#include "resolve/fetch_budget.h"
#include "resolve/help_map/map_type.h"

namespace velmohelp {

/// Where a request looks for pages.
struct PageSearch {
  Machine& machine;
  FetchBudget& budget;
  HelpContent content;
  /// Targets are URLs below the base URL, otherwise local paths.
  bool wants_urls;
  /// Becomes the help map that a search read last; stays as it is when the
  /// search read none.
  HelpMap& help_map;
};

/// Finds the target of a normalised page id. On success target is what was
/// found, otherwise the page id. Throws std::ios_base::failure when a help map
/// breaks while it is read.
bool FindPageTarget(const PageSearch& search, const std::string& page_id,
                    std::string& target);

}  // namespace velmohelp

#endif  // RESOLVE_PAGE_TARGET_H_
