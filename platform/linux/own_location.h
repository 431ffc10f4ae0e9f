// Where this process's code lies.
#ifndef PLATFORM_LINUX_OWN_LOCATION_H_
#define PLATFORM_LINUX_OWN_LOCATION_H_

#include <optional>
#include <string>
#include <string_view>

namespace velmohelp {

/// The folder of the file that this code was loaded from (the client library,
/// or a program that it is linked into), whatever directory the host works in
/// and however the file was named to it.
std::optional<std::string> OwnFolder();

/// The host program's executable: an absolute path.
std::optional<std::string> HostExecutable();

/// The file that is mapped at an address, by a listing in the form of
/// /proc/self/maps.
std::optional<std::string> MappedFile(std::string_view maps,
                                      unsigned long address);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_OWN_LOCATION_H_
