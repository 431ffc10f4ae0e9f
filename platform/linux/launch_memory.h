// The memory in which a program's start takes place.
#ifndef PLATFORM_LINUX_LAUNCH_MEMORY_H_
#define PLATFORM_LINUX_LAUNCH_MEMORY_H_

#include <cstddef>

#include "platform/linux/process_children.h"

namespace velmohelp {

/// Stacks for the two processes of a start, above a guard page, and their
/// report. A mapping of its own, because the host's thread may have a stack of
/// 16 KiB.
///
///     | guard | program's stack | intermediate's stack | report |
///
/// A mapping costs a seventh of a start, so one of them is kept for the next
/// start until the library is unloaded. What is kept is private: a child that
/// the host forks, and perhaps confines, must not be able to write where the
/// host's next start runs. Private memory carries the report only where the
/// children work in the host's memory; until that is known the mapping is
/// shared, for the reason that LaunchReport gives, and not kept.
class LaunchMemory {
 public:
  LaunchMemory();
  LaunchMemory(const LaunchMemory&) = delete;
  LaunchMemory& operator=(const LaunchMemory&) = delete;
  ~LaunchMemory();

  /// Children have worked in this process's memory, not in a copy of it: they
  /// always will.
  static void UsePrivateMemory();

  /// False when out of memory.
  explicit operator bool() const { return start_ != nullptr; }

  /// The highest address of each stack; both grow downwards.
  void* program_stack() const;
  void* intermediate_stack() const;
  /// All zero at first.
  LaunchReport* report() const;

 private:
  bool is_private_;
  char* start_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_LAUNCH_MEMORY_H_
