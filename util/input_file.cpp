#include "util/input_file.h"

#include <filesystem>

namespace velmohelp {

std::ifstream OpenInputFile(const std::string& path) {
  std::ifstream file;
  file.exceptions(std::ios_base::badbit);
  std::error_code ignored;
  if (!std::filesystem::is_other(path, ignored)) {
    file.open(path, std::ios_base::in | std::ios_base::binary);
  }
  return file;
}

std::size_t ReadPiece(std::istream& file, char* buffer, std::size_t size) {
  file.read(buffer, static_cast<std::streamsize>(size));
  return static_cast<std::size_t>(file.gcount());
}

std::size_t FileSizeHint(const std::string& path) {
  std::error_code unknown;
  const std::uintmax_t size = std::filesystem::file_size(path, unknown);
  return unknown ? 0 : size;
}

}  // namespace velmohelp
