// Where content and preferences lie.
#ifndef PLATFORM_FOLDERS_H_
#define PLATFORM_FOLDERS_H_

#include <cstdint>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// The current user's folders, and among them the Preferences folder.
inline constexpr std::int16_t kUserDomain = -32763;
inline constexpr std::uint32_t kPreferencesFolderType = 0x70726566;  // 'pref'

/// See ITEMInternal::StdStringFindFolder.
bool StdStringFindFolder(Machine& machine, std::int16_t domain,
                         std::uint32_t type, bool create, std::string& out);

/// The user's Preferences folder, made when missing, and suffix, which begins
/// with "/". The suffix alone when there is no such folder: a path at which
/// normally nothing lies.
std::string BelowPreferences(Machine& machine, const std::string& suffix);

/// See ITEMInternal::GetFSRefFromPath.
std::int16_t GetFsRefFromPath(Machine& machine, const std::string& path,
                              ITEMInternal::FileReference& out);

}  // namespace velmohelp

#endif  // PLATFORM_FOLDERS_H_
