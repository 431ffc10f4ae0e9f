// Which vector code this processor runs.
//
//   x86-64 with fast BMI2    Bmi2: all text that is plainly legal
//   any other x86-64         Sse2: runs of ASCII, and between UTF-16 and UTF-32
//                            all but surrogates
//   other processors         none: every character takes a step of its own
#ifndef UTIL_UNICODE_KERNEL_H_
#define UTIL_UNICODE_KERNEL_H_

#include "util/unicode/cursor.h"
#include "util/unicode/lanes.h"

namespace velmohelp::unicode {

// A kernel converts whole blocks and moves both cursors over their whole
// characters, perhaps none. It stops before anything that may be illegal:
// single steps alone know the result codes. It has
//   Sse2(source, target);
//   Bmi2(source, target), compiled with VELMO_BMI2.

#ifdef VELMO_UNICODE_LANES

/// Whether VELMO_BMI2 code runs here, and fast: AMD's family 17h takes hundreds
/// of cycles for PEXT, which Compress is built on. VELMO_UNICODE_PLAIN makes
/// this processor look like one without BMI2, for the tests.
inline bool HasFastBmi2() {
#ifdef VELMO_UNICODE_PLAIN
  return false;
#else
  return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi2") &&
         !__builtin_cpu_is("amdfam17h");
#endif
}

/// Works on copies of the cursors, which stay in registers. The caller's would
/// be stored and loaded again for every block, and each block would wait for
/// that.
template <typename Kernel, typename Source, typename Target>
VELMO_BMI2 void RunBmi2(Kernel kernel, Cursor<Source>& source,
                        Cursor<Target>& target) {
  auto from = source;
  auto to = target;
  kernel.Bmi2(from, to);
  source = from;
  target = to;
}

#endif

template <typename Kernel, typename Source, typename Target>
void RunKernel([[maybe_unused]] Kernel kernel,
               [[maybe_unused]] Cursor<Source>& source,
               [[maybe_unused]] Cursor<Target>& target) {
#ifdef VELMO_UNICODE_LANES
  if (source.left() < kUnitLanes || target.left() < kUnitLanes) return;
  if (HasFastBmi2()) {
    RunBmi2(kernel, source, target);
  } else {
    kernel.Sse2(source, target);
  }
#endif
}

}  // namespace velmohelp::unicode

#endif  // UTIL_UNICODE_KERNEL_H_
