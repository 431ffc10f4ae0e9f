// Memory that runs out where a test wants it to.
#ifndef TESTS_SUPPORT_EXHAUSTION_H_
#define TESTS_SUPPORT_EXHAUSTION_H_

#include <cstddef>

namespace velmohelp::testing {

/// How long memory stays out.
enum class Shortage { kOneAllocation, kFromThenOn };

/// The program's operator new fails at the nth allocation, counted from 1,
/// from the making of this object; at none before, and at none once it is
/// gone. One at a time, on one thread.
class Exhaustion {
 public:
  Exhaustion(std::size_t nth, Shortage shortage);
  Exhaustion(const Exhaustion&) = delete;
  Exhaustion& operator=(const Exhaustion&) = delete;
  ~Exhaustion();

  /// Memory has run out.
  static bool Came();
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_EXHAUSTION_H_
