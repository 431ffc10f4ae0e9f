// Reading files of this system whole.
#ifndef PLATFORM_LINUX_OPEN_FILE_H_
#define PLATFORM_LINUX_OPEN_FILE_H_

#include <cstddef>
#include <optional>
#include <string>

namespace velmohelp {

/// The text of a regular file. nullopt when something else or nothing is at
/// path, when it cannot be read, or when it is longer than limit.
std::optional<std::string> ReadRegularFile(const std::string& path,
                                           std::size_t limit);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_OPEN_FILE_H_
