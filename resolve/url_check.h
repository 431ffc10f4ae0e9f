// Whether a URL leads to a page.
#ifndef RESOLVE_URL_CHECK_H_
#define RESOLVE_URL_CHECK_H_

#include <string>

#include "platform/machine.h"
#include "resolve/fetch_budget.h"

namespace velmohelp {

/// target is a URI, and a text could be loaded from it, whole, within the
/// request's budget. Blocks meanwhile. FileExists is the check of a local path.
bool CanLoadText(Machine& machine, FetchBudget& budget,
                 const std::string& target);

}  // namespace velmohelp

#endif  // RESOLVE_URL_CHECK_H_
