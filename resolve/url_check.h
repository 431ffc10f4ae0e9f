// Whether a target can be shown.
#ifndef RESOLVE_URL_CHECK_H_
#define RESOLVE_URL_CHECK_H_

#include <string>

#include "platform/machine.h"
#include "resolve/fetch_budget.h"

namespace velmohelp {

/// fetch: target is a URI, and a text could be loaded from it, whole, within
/// the request's budget; blocks meanwhile. Otherwise: something exists at the
/// path target.
bool ValidateUrl(Machine& machine, FetchBudget& budget,
                 const std::string& target, bool fetch);

}  // namespace velmohelp

#endif  // RESOLVE_URL_CHECK_H_
