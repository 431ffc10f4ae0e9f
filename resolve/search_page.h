// The page with the search form of the help content.
#ifndef RESOLVE_SEARCH_PAGE_H_
#define RESOLVE_SEARCH_PAGE_H_

#include <optional>
#include <string>

#include "platform/machine.h"
#include "resolve/content_folders.h"
#include "resolve/fetch_budget.h"

namespace velmohelp {

/// The URL (online) or path of the first usable "search.html" of the content
/// folders; nullopt when there is none.
std::optional<std::string> FindSearchPage(Machine& machine, FetchBudget& budget,
                                          const HelpContent& content);

}  // namespace velmohelp

#endif  // RESOLVE_SEARCH_PAGE_H_
