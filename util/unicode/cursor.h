// The frame of all six converters.
#ifndef UTIL_UNICODE_CURSOR_H_
#define UTIL_UNICODE_CURSOR_H_

#include <velmohelp/unicode.h>

#include <cstddef>
#include <cstdint>

namespace velmohelp::unicode {

/// Whether a caller's range holds anything. The addresses are compared as
/// numbers, since those of an inverted range need not belong together.
inline bool HoldsUnits(const void* first, const void* last) {
  return first != nullptr && reinterpret_cast<std::uintptr_t>(first) <
                                 reinterpret_cast<std::uintptr_t>(last);
}

/// A position in a buffer, and how many units there are from it on.
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

  void Put(ITEMUTF32 unit) {
    *at_ = static_cast<Unit>(unit);
    Advance(1);
  }

 private:
  Unit* at_;
  std::size_t left_;
};

/// After text that the vectors leave alone, this many characters go one by one
/// before they are tried again: text that is full of such pays them seldom.
inline constexpr int kStepsBetweenBlocks = 16;

/// Runs one conversion. The direction has
///   void Blocks(source, target): moves both over as many whole characters as
///     it likes to take at once, maybe none;
///   ITEMConversionResult Step(source, target): moves both over one character,
///     or neither; the source is not empty.
template <typename Direction, typename Source, typename Target>
ITEMConversionResult Convert(Direction direction, Cursor<Source>& source,
                             Cursor<Target>& target) {
  while (!source.empty()) {
    direction.Blocks(source, target);
    for (int i = 0; i < kStepsBetweenBlocks && !source.empty(); ++i) {
      const ITEMConversionResult result = direction.Step(source, target);
      if (result != kConversionComplete) return result;
    }
  }
  return kConversionComplete;
}

/// The same between a caller's cursors, which are written back.
template <typename Direction, typename Source, typename Target>
ITEMConversionResult Convert(Direction direction, Source** source,
                             Source* source_end, Target** target,
                             Target* target_end) {
  Cursor<Source> from(*source, source_end);
  Cursor<Target> to(*target, target_end);
  const ITEMConversionResult result = Convert(direction, from, to);
  *source = from.at();
  *target = to.at();
  return result;
}

}  // namespace velmohelp::unicode

#endif  // UTIL_UNICODE_CURSOR_H_
