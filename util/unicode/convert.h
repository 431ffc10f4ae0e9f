// The loop of all six converters: whole blocks while a kernel takes them, then
// a few characters one by one, and again.
#ifndef UTIL_UNICODE_CONVERT_H_
#define UTIL_UNICODE_CONVERT_H_

#include "util/unicode/cursor.h"
#include "util/unicode/decode.h"
#include "util/unicode/kernel.h"

namespace velmohelp::unicode {

// A direction is a kernel (see kernel.h) that also has
//   Decoded Decode(source): reads one character; the source is not empty;
//   ITEMConversionResult Encode(code point, target): writes all its units, or
//     none.

/// Converts one character and moves both cursors over it, or neither.
template <typename Direction, typename Source, typename Target>
ITEMConversionResult Step(Direction direction, Cursor<Source>& source,
                          Cursor<Target>& target) {
  const Decoded character = direction.Decode(source);
  if (character.result != kConversionComplete) return character.result;
  const auto result = direction.Encode(character.value, target);
  if (result == kConversionComplete) source.Advance(character.units);
  return result;
}

/// When a kernel has stopped, this many characters go one by one before it is
/// tried again. Text that it can never convert then seldom pays for the
/// attempt.
inline constexpr int kStepsBetweenBlocks = 16;

template <typename Direction, typename Source, typename Target>
ITEMConversionResult Convert(Direction direction, Cursor<Source>& source,
                             Cursor<Target>& target) {
  while (!source.empty()) {
    RunKernel(direction, source, target);
    for (int i = 0; i < kStepsBetweenBlocks && !source.empty(); ++i) {
      const ITEMConversionResult result = Step(direction, source, target);
      if (result != kConversionComplete) return result;
    }
  }
  return kConversionComplete;
}

/// The same between a caller's cursors; writes both back.
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

#endif  // UTIL_UNICODE_CONVERT_H_
