#include "resolve/url_check.h"

#include "util/uri.h"

namespace velmohelp {

bool ValidateUrl(Machine& machine, const std::string& target, bool fetch) {
  if (!fetch) return machine.FileExists(target);
  return IsUri(target) && machine.FetchText(target);
}

}  // namespace velmohelp
