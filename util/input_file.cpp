#include "util/input_file.h"

#include <filesystem>

namespace velmohelp {

namespace {

namespace fs = std::filesystem;

/// 0 where nobody knows, as of all that is no regular file.
std::uintmax_t SizeOf(const fs::path& path) {
  std::error_code unknown;
  const std::uintmax_t size = fs::file_size(path, unknown);
  return unknown ? 0 : size;
}

}  // namespace

std::ifstream OpenInputFile(const std::string& name, std::size_t* size) {
  std::ifstream file;
  file.exceptions(std::ios_base::badbit);
  std::error_code ignored;
  const fs::path path(name);
  const std::uintmax_t known = SizeOf(path);
  const bool may_block = known == 0 && fs::is_other(path, ignored);
  if (known <= kLongestFile && !may_block) {
    file.open(path, std::ios_base::in | std::ios_base::binary);
  }
  if (size != nullptr) *size = known;
  return file;
}

std::size_t ReadPiece(std::istream& file, char* buffer, std::size_t size) {
  file.read(buffer, static_cast<std::streamsize>(size));
  return static_cast<std::size_t>(file.gcount());
}

}  // namespace velmohelp
