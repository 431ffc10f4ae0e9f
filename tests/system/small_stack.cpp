#include "tests/system/small_stack.h"

#include <pthread.h>
#include <sys/mman.h>

#include <algorithm>

namespace velmohelp::testing {
namespace {

constexpr std::size_t kPage = 4096;
/// More than any frame that steps over the guard page.
constexpr std::size_t kBelow = std::size_t{256} << 10U;
constexpr unsigned char kPaint = 0xA5;

void* Run(void* action) {
  (*static_cast<const std::function<void()>*>(action))();
  return nullptr;
}

bool IsPaint(unsigned char byte) { return byte == kPaint; }

}  // namespace

//     | below, painted | guard page | stack, painted |
std::optional<std::size_t> UseOfStack(std::size_t size,
                                      const std::function<void()>& action) {
  const std::size_t all = kBelow + kPage + size;
  auto* memory =
      static_cast<unsigned char*>(mmap(nullptr, all, PROT_READ | PROT_WRITE,
                                       MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
  unsigned char* const stack = memory + kBelow + kPage;
  std::fill(memory, memory + all, kPaint);
  mprotect(memory + kBelow, kPage, PROT_NONE);

  pthread_t thread = {};
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstack(&attributes, stack, size);
  pthread_create(&thread, &attributes, &Run,
                 const_cast<std::function<void()>*>(&action));
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);

  std::optional<std::size_t> used;
  if (std::all_of(memory, memory + kBelow, IsPaint)) {
    used = static_cast<std::size_t>(
        stack + size - std::find_if_not(stack, stack + size, IsPaint));
  }
  munmap(memory, all);
  return used;
}

}  // namespace velmohelp::testing
