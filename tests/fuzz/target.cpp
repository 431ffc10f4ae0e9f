// What a fuzzer calls, for all targets.
#include <cstdint>

#include "tests/fuzz/input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  using velmohelp::testing::Input;
  velmohelp::testing::Check(Input(std::string(data, data + size)));
  return 0;
}
