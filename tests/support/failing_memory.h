// Memory that runs out, for the whole test program.
#ifndef TESTS_SUPPORT_FAILING_MEMORY_H_
#define TESTS_SUPPORT_FAILING_MEMORY_H_

namespace velmohelp::testing {

/// As long as it lives, the allocation of that number (from 1) and all behind
/// it throw std::bad_alloc.
class FailingMemory {
 public:
  explicit FailingMemory(int allocation);
  ~FailingMemory();
  FailingMemory(const FailingMemory&) = delete;
  FailingMemory& operator=(const FailingMemory&) = delete;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_FAILING_MEMORY_H_
