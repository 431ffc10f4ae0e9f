#include "resolve/url_check.h"

#include "platform/files.h"
#include "util/uri.h"

namespace velmohelp {

bool ValidateUrl(Machine& machine, FetchBudget& budget,
                 const std::string& target, bool fetch) {
  if (!fetch) return FileExists(machine, target);
  const auto uri = UriOf(target);
  return uri && budget.FetchText(machine, *uri);
}

}  // namespace velmohelp
