// Files of configuration and content, read with standard C++ alone.
#ifndef UTIL_INPUT_FILE_H_
#define UTIL_INPUT_FILE_H_

#include <cstddef>
#include <fstream>
#include <string>

namespace velmohelp {

/// Opens a file for binary reading; a hard read error will raise
/// std::ios_base::failure. The stream is not open when path is empty, nothing
/// can be opened there, or a pipe or a device lies there: opening or reading
/// one could block the host for ever.
std::ifstream OpenInputFile(const std::string& path);

/// Reads up to size bytes; the number read is below size only at the end.
std::size_t ReadPiece(std::istream& file, char* buffer, std::size_t size);

/// The size of the file at path, 0 where nobody knows. A hint: text that grows
/// as it is read is copied, and its memory touched, many times.
std::size_t FileSizeHint(const std::string& path);

}  // namespace velmohelp

#endif  // UTIL_INPUT_FILE_H_
