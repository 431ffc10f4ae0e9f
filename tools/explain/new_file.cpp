#include "tools/explain/new_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/linux/retry_on_eintr.h"
#include "tools/files.h"

namespace velmohelp::tool {
namespace {

constexpr int kNew = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
constexpr mode_t kMode = 0666;

std::filesystem::path FolderOf(const std::filesystem::path& path) {
  return path.has_parent_path() ? path.parent_path() : ".";
}

}  // namespace

NewFile::NewFile(const std::filesystem::path& path)
    : path_(path),
      folder_(open(FolderOf(path).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
  if (!folder_) Fail();
  file_ = UniqueFd(openat(folder_.get(), path.filename().c_str(), kNew, kMode));
  if (!file_) Fail();
}

NewFile::~NewFile() {
  if (!written_) unlinkat(folder_.get(), path_.filename().c_str(), 0);
}

void NewFile::Write(std::string_view text) {
  while (!text.empty()) {
    const ssize_t size = RetryOnEintr(
        [&] { return write(file_.get(), text.data(), text.size()); });
    if (size < 0) Fail();
    text.remove_prefix(static_cast<std::size_t>(size));
  }
  // A network's file system may say only now that it has no room.
  if (close(file_.Release()) != 0) Fail();
  written_ = true;
}

void NewFile::Fail() const {
  throw FileError(path_.string() + ": " +
                  std::generic_category().message(errno));
}

}  // namespace velmohelp::tool
