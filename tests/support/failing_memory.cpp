#include "tests/support/failing_memory.h"

#include <cstdlib>
#include <new>

namespace {

constexpr int kNever = -1;

/// Allocations that still succeed.
int left = kNever;

}  // namespace

void* operator new(std::size_t size) {
  if (left == 0) throw std::bad_alloc();
  if (left > 0) --left;
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace velmohelp::testing {

FailingMemory::FailingMemory(int allocation) { left = allocation - 1; }
FailingMemory::~FailingMemory() { left = kNever; }

}  // namespace velmohelp::testing
