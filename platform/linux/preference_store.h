// Preferences on disk.
#ifndef PLATFORM_LINUX_PREFERENCE_STORE_H_
#define PLATFORM_LINUX_PREFERENCE_STORE_H_

#include <optional>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// A preference, read from its file at each call; see Machine::Preference. What
/// is not a regular file, or is longer than kSettingsFileLimit, sets nothing.
///
/// The administrator's folder is fixed when the library is built: no variable
/// of the environment moves it, so a user cannot step around the
/// administrator.
std::optional<std::string> ReadPreference(const std::string& domain,
                                          const std::string& key,
                                          PreferenceScope scope);

/// The same from a given folder.
std::optional<std::string> ReadPreferenceIn(const std::string& folder,
                                            const std::string& domain,
                                            const std::string& key);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_PREFERENCE_STORE_H_
