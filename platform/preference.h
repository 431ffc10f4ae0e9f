// Preferences as the client reads them.
#ifndef PLATFORM_PREFERENCE_H_
#define PLATFORM_PREFERENCE_H_

#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// The text of a preference, UTF-8; "" when nothing is set, or when
/// ITEMInternal::GetCharFromCFStringRef gives null for the value. domain and
/// key are read as Mac Roman, up to the first zero byte.
std::string PreferenceText(Machine& machine, const std::string& domain,
                           const std::string& key, PreferenceScope scope);

}  // namespace velmohelp

#endif  // PLATFORM_PREFERENCE_H_
