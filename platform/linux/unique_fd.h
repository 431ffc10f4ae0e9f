// A file descriptor with one owner.
#ifndef PLATFORM_LINUX_UNIQUE_FD_H_
#define PLATFORM_LINUX_UNIQUE_FD_H_

#include <unistd.h>

#include <utility>

namespace velmohelp {

/// Closes its descriptor when it is destroyed; -1 means that it has none.
class UniqueFd {
 public:
  UniqueFd() = default;
  explicit UniqueFd(int fd) : fd_(fd) {}
  UniqueFd(UniqueFd&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  UniqueFd& operator=(UniqueFd&& other) noexcept {
    std::swap(fd_, other.fd_);
    return *this;
  }
  UniqueFd(const UniqueFd&) = delete;
  UniqueFd& operator=(const UniqueFd&) = delete;
  ~UniqueFd() { Close(); }

  int get() const { return fd_; }
  explicit operator bool() const { return fd_ >= 0; }

  /// Hands the descriptor over to the caller.
  int Release() { return std::exchange(fd_, -1); }

  /// Never repeated after EINTR: Linux has closed the descriptor all the same,
  /// and another thread of the host may have its number by then.
  void Close() {
    if (fd_ >= 0) close(std::exchange(fd_, -1));
  }

 private:
  int fd_ = -1;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_UNIQUE_FD_H_
