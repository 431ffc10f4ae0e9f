#include "platform/open_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ios>
#include <system_error>
#include <utility>

#include "platform/linux/files.h"
#include "platform/linux/open_file.h"
#include "platform/linux/retry_on_eintr.h"
#include "util/file_text.h"

namespace velmohelp {
namespace {

class LinuxFile : public InputFile {
 public:
  LinuxFile(UniqueFd file, std::size_t size, std::size_t limit)
      : InputFile(size, limit), file_(std::move(file)) {}

  std::size_t Read(char* buffer, std::size_t size) override {
    const ssize_t got =
        RetryOnEintr([&] { return read(file_.get(), buffer, size); });
    if (got >= 0) return static_cast<std::size_t>(got);
    throw std::ios_base::failure(
        "read", std::error_code(errno, std::generic_category()));
  }

 private:
  UniqueFd file_;
};

/// Null when it is too long.
std::unique_ptr<InputFile> MakeFile(UniqueFd file, std::size_t limit) {
  struct stat status = {};
  if (fstat(file.get(), &status) != 0) return nullptr;
  const auto size =
      S_ISREG(status.st_mode) ? static_cast<std::size_t>(status.st_size) : 0;
  if (size > limit) return nullptr;
  return std::make_unique<LinuxFile>(std::move(file), size, limit);
}

}  // namespace

std::unique_ptr<InputFile> OpenInputFile(const std::string& path,
                                         std::size_t limit) {
  UniqueFd file = OpenForReading(path);
  if (!IsRegularFile(file) && !IsDirectory(file)) return nullptr;
  return MakeFile(std::move(file), limit);
}

std::optional<std::string> ReadRegularFile(const std::string& path,
                                           std::size_t limit) {
  UniqueFd opened = OpenRegularFile(path);
  if (!opened) return std::nullopt;
  const auto file = MakeFile(std::move(opened), limit);
  FileText text;
  try {
    if (!file || !text.AppendRest(*file)) return std::nullopt;
  } catch (const std::ios_base::failure&) {
    return std::nullopt;
  }
  return std::string(text.bytes());
}

}  // namespace velmohelp
