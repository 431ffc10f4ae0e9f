#include "resolve/url_check.h"

#include "util/uri.h"

namespace velmohelp {

bool CanLoadText(Machine& machine, FetchBudget& budget,
                 const std::string& target) {
  const auto uri = UriOf(target);
  return uri && budget.FetchText(machine, *uri);
}

}  // namespace velmohelp
