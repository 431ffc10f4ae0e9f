// Whether a target can be shown.
#ifndef RESOLVE_URL_CHECK_H_
#define RESOLVE_URL_CHECK_H_

#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// See ITEMInternal::ValidateURL.
bool ValidateUrl(Machine& machine, const std::string& target, bool fetch);

}  // namespace velmohelp

#endif  // RESOLVE_URL_CHECK_H_
