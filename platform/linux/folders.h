// The user's own folders.
#ifndef PLATFORM_LINUX_FOLDERS_H_
#define PLATFORM_LINUX_FOLDERS_H_

#include <optional>
#include <string>

namespace velmohelp {

/// The folder of the user's settings, whether it exists or not:
/// $XDG_CONFIG_HOME, else .config in $HOME, else .config in the home that the
/// password database has for the real user. nullopt when there is no home.
///
/// A variable counts only when it holds an absolute path shorter than PATH_MAX
/// (a relative one would move with the host's working directory). In a
/// set-user-ID host none counts.
std::optional<std::string> PreferencesFolderPath();

/// The same folder, once it exists. create: make it, and what is missing above
/// it, for the user alone; but never the home itself.
std::optional<std::string> PreferencesFolder(bool create);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_FOLDERS_H_
