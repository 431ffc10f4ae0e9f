// Where content and preferences are.
#ifndef PLATFORM_FOLDERS_H_
#define PLATFORM_FOLDERS_H_

#include <cstdint>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// See ITEMInternal::StdStringFindFolder.
bool FindStandardFolder(Machine& machine, std::int16_t domain,
                        std::uint32_t type, bool create, std::string& out);

/// The user's Preferences folder, made when it is missing, followed by suffix,
/// which begins with "/". The suffix alone when there is no such folder: a path
/// where normally nothing exists.
std::string BelowPreferences(Machine& machine, const std::string& suffix);

/// See ITEMInternal::GetInstalledContentPath.
std::string InstalledContentPath();

/// See ITEMInternal::GetHelpContentDirectory.
std::string HelpContentDirectory(const std::string& first,
                                 const std::string& second);

/// See ITEMInternal::GetFSRefFromPath.
std::int16_t FindFileReference(Machine& machine, const std::string& path,
                               FileReference& out);

}  // namespace velmohelp

#endif  // PLATFORM_FOLDERS_H_
