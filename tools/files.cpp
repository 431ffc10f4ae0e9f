#include "tools/files.h"

#include <cerrno>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace velmohelp::tool {
namespace {

[[noreturn]] void Fail(const std::filesystem::path& file,
                       const std::string& why) {
  throw std::runtime_error(file.string() + ": " + why);
}

std::string LastError() { return std::generic_category().message(errno); }

}  // namespace

std::string ReadWholeFile(const std::filesystem::path& file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) Fail(file, "no such file");
  if (!std::filesystem::is_regular_file(status)) Fail(file, "not a file");
  if (std::filesystem::file_size(file, error) > kLargestFile) {
    Fail(file, "larger than 256 MiB");
  }
  std::ifstream stream(file, std::ios::binary);
  if (!stream) Fail(file, LastError());
  std::string text(std::istreambuf_iterator<char>(stream), {});
  if (stream.bad()) Fail(file, LastError());
  return text;
}

void WriteWholeFile(const std::filesystem::path& file, std::string_view text,
                    bool overwrite) {
  if (!overwrite && std::filesystem::exists(file)) {
    Fail(file, "exists already; --force overwrites it");
  }
  if (file.has_parent_path()) {
    std::filesystem::create_directories(file.parent_path());
  }
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  stream.close();
  if (!stream) Fail(file, LastError());
}

}  // namespace velmohelp::tool
