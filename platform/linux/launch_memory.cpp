#include "platform/linux/launch_memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <atomic>

namespace velmohelp {
namespace {

/// What the children use is a tenth of it; the rest is for sanitizers and for
/// functions that the dynamic loader has yet to resolve.
constexpr std::size_t kStackSize = std::size_t{16} << 10U;

std::size_t PageSize() {
  return static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

std::size_t InPages(std::size_t size) {
  return (size + PageSize() - 1) / PageSize() * PageSize();
}

std::size_t Size() {
  return PageSize() + 2 * InPages(kStackSize) + InPages(sizeof(LaunchReport));
}

char* Map(bool is_private) {
  const int sharing = is_private ? MAP_PRIVATE : MAP_SHARED;
  void* memory = mmap(nullptr, Size(), PROT_READ | PROT_WRITE,
                      sharing | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) return nullptr;
  mprotect(memory, PageSize(), PROT_NONE);
  return static_cast<char*>(memory);
}

void Unmap(char* start) {
  if (start != nullptr) munmap(start, Size());
}

std::atomic<bool> children_share_memory = false;

/// Null while a start uses it. A thread that still starts programs after the
/// unloading finds it null, and maps its own.
std::atomic<char*> kept = nullptr;

class UnmapsAtUnload {
 public:
  UnmapsAtUnload() = default;
  UnmapsAtUnload(const UnmapsAtUnload&) = delete;
  UnmapsAtUnload& operator=(const UnmapsAtUnload&) = delete;
  ~UnmapsAtUnload() { Unmap(kept.exchange(nullptr)); }
} const unmaps_at_unload;

}  // namespace

LaunchMemory::LaunchMemory()
    : is_private_(children_share_memory), start_(kept.exchange(nullptr)) {
  if (start_ == nullptr) start_ = Map(is_private_);
  if (start_ != nullptr) *report() = {};
}

LaunchMemory::~LaunchMemory() {
  char* none = nullptr;
  if (is_private_ && kept.compare_exchange_strong(none, start_)) return;
  Unmap(start_);
}

void LaunchMemory::UsePrivateMemory() { children_share_memory = true; }

void* LaunchMemory::program_stack() const {
  return start_ + PageSize() + InPages(kStackSize);
}

void* LaunchMemory::intermediate_stack() const {
  return start_ + PageSize() + 2 * InPages(kStackSize);
}

LaunchReport* LaunchMemory::report() const {
  return static_cast<LaunchReport*>(intermediate_stack());
}

}  // namespace velmohelp
