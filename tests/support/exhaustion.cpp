#include "tests/support/exhaustion.h"

#include <cstdlib>
#include <new>

namespace velmohelp::testing {
namespace {

constinit std::size_t left_before_failure = 0;  // 0: none fails
constinit bool stays_out = false;
constinit bool came = false;

bool Fails() {
  if (left_before_failure == 0 || --left_before_failure > 0) return false;
  came = true;
  if (stays_out) left_before_failure = 1;
  return true;
}

void* Allocate(std::size_t size) {
  return Fails() ? nullptr : std::malloc(size > 0 ? size : 1);
}

void* AllocateAligned(std::size_t size, std::align_val_t alignment) {
  const auto step = static_cast<std::size_t>(alignment);
  const std::size_t whole = (size / step + 1) * step;
  return Fails() ? nullptr : std::aligned_alloc(step, whole);
}

void* OrThrow(void* memory) {
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

Exhaustion::Exhaustion(std::size_t nth, Shortage shortage) {
  stays_out = shortage == Shortage::kFromThenOn;
  came = false;
  left_before_failure = nth;
}

Exhaustion::~Exhaustion() { left_before_failure = 0; }

bool Exhaustion::Came() { return came; }

}  // namespace velmohelp::testing

using velmohelp::testing::Allocate;
using velmohelp::testing::AllocateAligned;
using velmohelp::testing::OrThrow;

// All of them: a sanitizer brings its own for each that is not replaced.
// The C++ library has to find all of these. Clang declares the sized ones
// nowhere, so they would be hidden from it.
#pragma GCC visibility push(default)
void* operator new(std::size_t size) { return OrThrow(Allocate(size)); }
void* operator new[](std::size_t size) { return OrThrow(Allocate(size)); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  return OrThrow(AllocateAligned(size, alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return OrThrow(AllocateAligned(size, alignment));
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::align_val_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept {
  std::free(memory);
}
#pragma GCC visibility pop
