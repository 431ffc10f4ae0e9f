// The first two bytes choose a direction, the mode and the room; the rest is
// the source. Every conversion must do what the oracle does.
#include "tests/fuzz/input.h"
#include "tests/support/unicode_compare.h"

namespace velmohelp::testing {

void Check(Input input) {
  const auto* data = reinterpret_cast<const ITEMUTF8*>(input.Rest().data());
  const std::size_t size = input.Rest().size();
  if (size < 2) return;
  const auto check = [&](const auto& direction) {
    return bool{
        AgreeOnBytes(direction, data + 2, size - 2, data[1], data[0] % 2)};
  };
  bool agree = bool{AgreeOnLegality(data + 2, size - 2)};
  const int direction = data[0] / 2 % 6;
  if (direction == 0) agree = agree && check(kUtf8To16);
  if (direction == 1) agree = agree && check(kUtf8To32);
  if (direction == 2) agree = agree && check(kUtf16To8);
  if (direction == 3) agree = agree && check(kUtf16To32);
  if (direction == 4) agree = agree && check(kUtf32To8);
  if (direction == 5) agree = agree && check(kUtf32To16);
  Same(agree, true);
}

}  // namespace velmohelp::testing
