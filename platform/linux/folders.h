// The user's own folders.
#ifndef PLATFORM_LINUX_FOLDERS_H_
#define PLATFORM_LINUX_FOLDERS_H_

#include <optional>
#include <string>

namespace velmohelp {

/// Where the user's settings lie, whether it exists or not: $XDG_CONFIG_HOME
/// when it is an absolute path, else .config in $HOME, else .config in the
/// home that the password database has for the user. A relative path counts as
/// none: it would move with the host's working directory. nullopt when there
/// is no home at all.
std::optional<std::string> PreferencesFolderPath();

/// The same folder, once it exists. create: make it, and what is missing above
/// it, for the user alone.
std::optional<std::string> PreferencesFolder(bool create);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_FOLDERS_H_
