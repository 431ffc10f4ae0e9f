// A position in a caller's buffer.
#ifndef UTIL_UNICODE_CURSOR_H_
#define UTIL_UNICODE_CURSOR_H_

#include <velmohelp/unicode.h>

#include <cstddef>
#include <cstdint>

namespace velmohelp::unicode {

/// Whether a caller's range holds anything. Compares the addresses as numbers:
/// those of an inverted range need not belong to the same buffer.
inline bool HoldsUnits(const void* first, const void* last) {
  return first != nullptr && reinterpret_cast<std::uintptr_t>(first) <
                                 reinterpret_cast<std::uintptr_t>(last);
}

/// A position, and how many units are left from there to the buffer's end.
template <typename Unit>
class Cursor {
 public:
  Cursor(Unit* first, Unit* last)
      : at_(first),
        left_(HoldsUnits(first, last) ? static_cast<std::size_t>(last - first)
                                      : 0) {}

  Unit* at() const { return at_; }
  std::size_t left() const { return left_; }
  bool empty() const { return left_ == 0; }

  void Advance(std::size_t units) {
    at_ += units;
    left_ -= units;
  }

  void Write(ITEMUTF32 unit) {
    *at_ = static_cast<Unit>(unit);
    Advance(1);
  }

 private:
  Unit* at_;
  std::size_t left_;
};

}  // namespace velmohelp::unicode

#endif  // UTIL_UNICODE_CURSOR_H_
