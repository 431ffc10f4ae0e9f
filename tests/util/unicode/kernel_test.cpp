// Which vector code runs, and when.
#include "util/unicode/kernel.h"

#include <gtest/gtest.h>

#include <string>

namespace velmohelp::unicode {
namespace {

/// What this build may run on this processor.
std::string KernelHere() {
#if !defined(VELMO_UNICODE_LANES)
  return "";
#elif defined(VELMO_UNICODE_PLAIN)
  return "SSE2";
#else
  const bool fast = __builtin_cpu_supports("avx2") &&
                    __builtin_cpu_supports("bmi2") &&
                    !__builtin_cpu_is("amdfam17h");
  return fast ? "BMI2" : "SSE2";
#endif
}

/// Notes which of its functions was called, and moves both cursors by one.
struct NotingKernel {
  std::string* called;

  void Sse2(Cursor<const ITEMUTF8>& source, Cursor<ITEMUTF16>& target) const {
    Note("SSE2", source, target);
  }
  void Bmi2(Cursor<const ITEMUTF8>& source, Cursor<ITEMUTF16>& target) const {
    Note("BMI2", source, target);
  }

 private:
  void Note(const char* name, Cursor<const ITEMUTF8>& source,
            Cursor<ITEMUTF16>& target) const {
    *called += name;
    source.Advance(1);
    target.Advance(1);
  }
};

class Kernel : public ::testing::Test {
 protected:
  /// Runs the kernel with this many units in the source and in the target.
  void Run(std::size_t source_size, std::size_t target_size) {
    Cursor<const ITEMUTF8> source(source_, source_ + source_size);
    Cursor<ITEMUTF16> target(target_, target_ + target_size);
    RunKernel(NotingKernel{&called_}, source, target);
    consumed_ = source_size - source.left();
    produced_ = target_size - target.left();
  }

  ITEMUTF8 source_[16] = {};
  ITEMUTF16 target_[16] = {};
  std::string called_;
  std::size_t consumed_ = 0;
  std::size_t produced_ = 0;
};

TEST_F(Kernel, IsTheFastestOfThisProcessorAndMovesTheCallersCursors) {
  Run(16, 16);
  EXPECT_EQ(called_, KernelHere());
  EXPECT_EQ(consumed_, called_.empty() ? 0 : 1);
  EXPECT_EQ(produced_, consumed_);
}

TEST_F(Kernel, IsNotEnteredForLessThanABlock) {
  Run(7, 16);
  Run(16, 7);
  EXPECT_EQ(called_, "");
  Run(8, 8);
  EXPECT_EQ(called_, KernelHere());
}

}  // namespace
}  // namespace velmohelp::unicode
