// Directories that are one thing: the host's resources, bundles, applications.
#ifndef PLATFORM_LINUX_BUNDLES_H_
#define PLATFORM_LINUX_BUNDLES_H_

#include <optional>
#include <string>

namespace velmohelp {

/// For a host program <dir>/<name>: <dir>/<name>.resources, else
/// <dir>/../share/<name>.resources; nullopt when neither is a directory.
std::optional<std::string> ResourcesOf(const std::string& executable);

/// The first directory <identifier>.framework in: library_folder, ../Frameworks
/// of the host program's folder, VELMO_FRAMEWORKS_DIR. Either of the first two
/// may be unknown; host is an executable.
std::optional<std::string> FindBundle(
    const std::string& identifier,
    const std::optional<std::string>& library_folder,
    const std::optional<std::string>& host);

/// The executable of an application directory <app>: <app>/bin/<name>, else
/// <app>/AppRun, else <app>/<name>, where <name> is the directory's own name
/// without a final ".app".
std::optional<std::string> ExecutableOf(const std::string& directory);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_BUNDLES_H_
