// Files that the tool reads and writes.
#ifndef TOOLS_FILES_H_
#define TOOLS_FILES_H_

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace velmohelp::tool {

/// As much as the client reads of a help map.
inline constexpr std::uintmax_t kLargestFile = std::uintmax_t{256} << 20;

/// The bytes of a regular file. Throws std::runtime_error with a text for the
/// person when it cannot be read, is not a regular file or is larger than
/// kLargestFile.
std::string ReadWholeFile(const std::filesystem::path& file);

/// Writes a new file, with the folders above it. Throws std::runtime_error when
/// that fails; a file that is there already is left as it is then, unless
/// overwrite is set.
void WriteWholeFile(const std::filesystem::path& file, std::string_view text,
                    bool overwrite);

}  // namespace velmohelp::tool

#endif  // TOOLS_FILES_H_
