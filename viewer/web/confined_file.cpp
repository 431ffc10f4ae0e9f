#include "viewer/web/confined_file.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace viewer {
namespace {

FileProblem ProblemOf(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
      return FileProblem::kMissing;
    case EXDEV:
    case ELOOP:
      return FileProblem::kOutside;
    default:
      return FileProblem::kUnreadable;
  }
}

// The kernel checks each step of the path, so that a link that changes
// meanwhile cannot lead outside. Non-blocking: a pipe must not stop the window.
int OpenBeneath(int folder, const std::string& name) {
  open_how how = {};
  how.flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  how.resolve = RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS;
  return static_cast<int>(
      syscall(SYS_openat2, folder, name.c_str(), &how, sizeof(how)));
}

}  // namespace

ConfinedFile::ConfinedFile(const std::string& folder, const std::string& name)
    : problem_(Open(folder, name)) {}

ConfinedFile::~ConfinedFile() {
  if (fd_ >= 0) close(fd_);
}

FileProblem ConfinedFile::Open(const std::string& folder,
                               const std::string& name) {
  // A NUL would hide the rest of the name from the kernel.
  if (name.find('\0') != std::string::npos) return FileProblem::kMissing;
  const int root = open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
  if (root < 0) return ProblemOf(errno);
  fd_ = OpenBeneath(root, name);
  const int error = errno;
  close(root);
  return fd_ < 0 ? ProblemOf(error) : Judge();
}

FileProblem ConfinedFile::Judge() {
  struct stat status = {};
  if (fstat(fd_, &status) != 0) return FileProblem::kUnreadable;
  if (!S_ISREG(status.st_mode)) return FileProblem::kNotAFile;
  size_ = status.st_size;
  modified_ = status.st_mtime;
  return FileProblem::kNone;
}

int ConfinedFile::Release() { return std::exchange(fd_, -1); }

FileProblem ConfinedFile::Read(std::int64_t limit, std::string& text) {
  text.clear();
  if (problem_ != FileProblem::kNone) return problem_;
  if (size_ > limit) return FileProblem::kTooLarge;
  // One byte more than fstat said, to see a file that grows.
  text.resize(static_cast<std::size_t>(size_) + 1);
  std::size_t filled = 0;
  while (filled < text.size()) {
    const auto got = read(fd_, text.data() + filled, text.size() - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return FileProblem::kUnreadable;
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  text.resize(filled);
  return FileProblem::kNone;
}

}  // namespace viewer
