#include "resolve/url_check.h"

#include "util/uri.h"

namespace velmohelp {

bool ValidateUrl(Machine& machine, const std::string& target, bool fetch) {
  if (!fetch) return machine.FileExists(target);
  const auto uri = UriOf(target);
  return uri && machine.FetchText(*uri);
}

}  // namespace velmohelp
