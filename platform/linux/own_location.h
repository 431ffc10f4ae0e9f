// Where this process's code is.
#ifndef PLATFORM_LINUX_OWN_LOCATION_H_
#define PLATFORM_LINUX_OWN_LOCATION_H_

#include <optional>
#include <string>
#include <string_view>

namespace velmohelp {

/// The folder of the file that this code was loaded from (the client library,
/// or a program that it is linked into), whatever the host's working directory
/// and by whatever path the host loaded it. nullopt when the path was relative
/// and there is no /proc.
std::optional<std::string> OwnFolder();

/// The host program's executable, an absolute path; nullopt without a /proc.
std::optional<std::string> HostExecutable();

/// The file that is mapped at an address, according to a text in the form of
/// /proc/self/maps.
std::optional<std::string> MappedFile(std::string_view maps,
                                      unsigned long address);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_OWN_LOCATION_H_
