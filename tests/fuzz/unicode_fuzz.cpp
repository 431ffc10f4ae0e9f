// The first two bytes choose a direction, the mode and the room; the rest is
// the source. Every conversion must do what the slow one does.
#include <cstdlib>

#include "tests/support/unicode_compare.h"

namespace t = velmohelp::testing;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  if (size < 2) return 0;
  const auto check = [&](const auto& direction) {
    return bool{
        t::AgreeOnBytes(direction, data + 2, size - 2, data[1], data[0] % 2)};
  };
  bool agree = bool{t::AgreeOnLegality(data + 2, size - 2)};
  const int direction = data[0] / 2 % 6;
  if (direction == 0) agree = agree && check(t::kUtf8To16);
  if (direction == 1) agree = agree && check(t::kUtf8To32);
  if (direction == 2) agree = agree && check(t::kUtf16To8);
  if (direction == 3) agree = agree && check(t::kUtf16To32);
  if (direction == 4) agree = agree && check(t::kUtf32To8);
  if (direction == 5) agree = agree && check(t::kUtf32To16);
  if (!agree) std::abort();
  return 0;
}
