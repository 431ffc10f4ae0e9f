#include "platform/linux/launch_memory.h"

#include <sys/mman.h>
#include <unistd.h>

namespace velmohelp {
namespace {

/// What the children use is a tenth of it; the rest is for sanitizers and for
/// functions that the dynamic loader has yet to resolve.
constexpr std::size_t kStackSize = std::size_t{16} << 10U;

std::size_t RoundedUp(std::size_t size, std::size_t page) {
  return (size + page - 1) / page * page;
}

}  // namespace

LaunchMemory::LaunchMemory()
    : page_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))),
      stack_(RoundedUp(kStackSize, page_)),
      size_(page_ + 2 * stack_ + RoundedUp(sizeof(LaunchReport), page_)) {
  void* memory = mmap(nullptr, size_, PROT_READ | PROT_WRITE,
                      MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) return;
  start_ = static_cast<char*>(memory);
  mprotect(start_, page_, PROT_NONE);
}

LaunchMemory::~LaunchMemory() {
  if (start_ != nullptr) munmap(start_, size_);
}

void* LaunchMemory::program_stack() const { return start_ + page_ + stack_; }

void* LaunchMemory::intermediate_stack() const {
  return start_ + page_ + 2 * stack_;
}

LaunchReport* LaunchMemory::report() const {
  return static_cast<LaunchReport*>(intermediate_stack());
}

}  // namespace velmohelp
