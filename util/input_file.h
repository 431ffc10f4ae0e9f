// Files of configuration and content, read with standard C++ alone.
#ifndef UTIL_INPUT_FILE_H_
#define UTIL_INPUT_FILE_H_

#include <cstddef>
#include <fstream>
#include <string>

namespace velmohelp {

/// Whoever reads a file to its end gives up behind this length: some files have
/// no end, and one that grows as it is read would take all of the host's time
/// and memory.
inline constexpr std::size_t kLongestFile = 0x7FFFFFFF;

/// Opens a file for binary reading; a hard read error will raise
/// std::ios_base::failure. The stream is not open when name is empty, nothing
/// can be opened there, a pipe or a device lies there (opening or reading one
/// could block the host for ever), or a file that is longer than kLongestFile.
/// size: gets the file's size, 0 where nobody knows. It is a hint: text that
/// grows as it is read is copied, and its memory touched, many times.
std::ifstream OpenInputFile(const std::string& name,
                            std::size_t* size = nullptr);

/// Reads up to size bytes; the number read is below size only at the end.
std::size_t ReadPiece(std::istream& file, char* buffer, std::size_t size);

}  // namespace velmohelp

#endif  // UTIL_INPUT_FILE_H_
