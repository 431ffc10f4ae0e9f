// A text that needs no destructor.
#ifndef PLATFORM_LINUX_FIXED_TEXT_H_
#define PLATFORM_LINUX_FIXED_TEXT_H_

#include <cstddef>
#include <optional>
#include <string>

namespace velmohelp {

/// A text in place, or none: no destructor frees it while a thread of an ending
/// process reads it, and an unloaded library does not leak it.
template <std::size_t kRoom>
class FixedText {
 public:
  /// False, and no change, for a text that is empty or does not fit.
  bool Set(const std::string& text) {
    if (text.empty() || text.size() > kRoom) return false;
    size_ = text.copy(text_, kRoom);
    return true;
  }
  void Clear() { size_ = 0; }

  std::optional<std::string> text() const {
    return size_ > 0 ? std::optional(std::string(text_, size_)) : std::nullopt;
  }

 private:
  char text_[kRoom] = {};
  std::size_t size_ = 0;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_FIXED_TEXT_H_
