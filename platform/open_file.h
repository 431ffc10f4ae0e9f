// Opening files of configuration and content.
#ifndef PLATFORM_OPEN_FILE_H_
#define PLATFORM_OPEN_FILE_H_

#include <memory>
#include <string>

#include "util/input_file.h"

namespace velmohelp {

/// Opens a file for reading. Null when nothing can be opened at path, when it
/// is longer than limit, or when it is neither a regular file nor a directory
/// (of which every read fails): reading a pipe or a device could block the
/// host forever. Never blocks. Each system's folder defines it.
std::unique_ptr<InputFile> OpenInputFile(const std::string& path,
                                         std::size_t limit);

}  // namespace velmohelp

#endif  // PLATFORM_OPEN_FILE_H_
