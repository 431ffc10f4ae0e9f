// Files that the tool reads and writes.
#ifndef TOOLS_FILES_H_
#define TOOLS_FILES_H_

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "util/input_file.h"

namespace velmohelp::tool {

/// A file cannot be read or written. what() names it and says why.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The bytes of a regular file. Throws FileError when it cannot be read, is not
/// a regular file or is longer than limit, by default as much as the client
/// reads of a help map.
std::string ReadWholeFile(const std::filesystem::path& file,
                          std::size_t limit = kHelpMapLimit);

/// Throws FileError unless file is a regular file: a pipe would never end.
void ExpectRegular(const std::filesystem::path& file);

/// Throws FileError when a symbolic link leads from folder to a place outside
/// of it on the way to file.
void ExpectBelow(const std::filesystem::path& folder,
                 const std::filesystem::path& file);

/// Throws FileError when something is at file already, unless overwrite is set.
void ExpectWritable(const std::filesystem::path& file, bool overwrite);

/// Writes a new file, with the folders above it. Throws FileError when that
/// fails; what is there already is left as it is then, unless overwrite is set.
/// A symbolic link is replaced, not followed: its target is not the file that
/// the person named.
void WriteWholeFile(const std::filesystem::path& file, std::string_view text,
                    bool overwrite);

}  // namespace velmohelp::tool

#endif  // TOOLS_FILES_H_
