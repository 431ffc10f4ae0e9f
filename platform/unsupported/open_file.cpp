#include "platform/open_file.h"

#include <filesystem>
#include <fstream>
#include <locale>

namespace velmohelp {
namespace {

namespace fs = std::filesystem;

class StandardFile : public InputFile {
 public:
  StandardFile(const fs::path& path, std::size_t size, std::size_t limit)
      : InputFile(size, limit) {
    // The host's own locale may convert what is read.
    file_.imbue(std::locale::classic());
    file_.open(path, std::ios_base::in | std::ios_base::binary);
  }

  bool is_open() const { return file_.is_open(); }

  std::size_t Read(char* buffer, std::size_t size) override {
    file_.read(buffer, static_cast<std::streamsize>(size));
    if (file_.bad()) throw std::ios_base::failure("read");
    return static_cast<std::size_t>(file_.gcount());
  }

 private:
  std::ifstream file_;
};

/// 0 when nobody knows, and for all but regular files.
std::uintmax_t SizeOf(const fs::path& path) {
  std::error_code unknown;
  const std::uintmax_t size = fs::file_size(path, unknown);
  return unknown ? 0 : size;
}

}  // namespace

/// Standard C++ cannot ask an open file what it is: a pipe that takes the
/// file's place between the question and the opening blocks.
std::unique_ptr<InputFile> OpenInputFile(const std::string& path,
                                         std::size_t limit) {
  std::error_code ignored;
  const std::uintmax_t size = SizeOf(path);
  if (size > limit || fs::is_other(path, ignored)) return nullptr;
  auto file = std::make_unique<StandardFile>(path, size, limit);
  if (!file->is_open()) return nullptr;
  return file;
}

}  // namespace velmohelp
