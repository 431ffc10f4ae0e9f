// A file descriptor with one owner.
#ifndef PLATFORM_LINUX_DESCRIPTOR_H_
#define PLATFORM_LINUX_DESCRIPTOR_H_

#include <unistd.h>

#include <utility>

namespace velmohelp {

/// Closes its descriptor at the end; -1 is none.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept
      : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { Close(); }

  int number() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }

  /// A close that a signal interrupts has closed all the same.
  void Close() {
    if (number_ >= 0) close(std::exchange(number_, -1));
  }

 private:
  int number_ = -1;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_DESCRIPTOR_H_
