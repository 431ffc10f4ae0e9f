// The memory in which a program's start takes place.
#ifndef PLATFORM_LINUX_LAUNCH_MEMORY_H_
#define PLATFORM_LINUX_LAUNCH_MEMORY_H_

#include <cstddef>

#include "platform/linux/process_children.h"

namespace velmohelp {

/// Stacks for the two processes of a start, above a guard page, and their
/// report. A mapping of its own, because the host's thread may have a stack of
/// 16 KiB; shared, for the reason that LaunchReport gives.
///
///     | guard | program's stack | intermediate's stack | report |
class LaunchMemory {
 public:
  LaunchMemory();
  LaunchMemory(const LaunchMemory&) = delete;
  LaunchMemory& operator=(const LaunchMemory&) = delete;
  ~LaunchMemory();

  /// False when out of memory.
  explicit operator bool() const { return start_ != nullptr; }

  /// The highest address of each stack; both grow downwards.
  void* program_stack() const;
  void* intermediate_stack() const;
  /// All zero at first.
  LaunchReport* report() const;

 private:
  std::size_t page_;
  std::size_t stack_;
  std::size_t size_;
  char* start_ = nullptr;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_LAUNCH_MEMORY_H_
