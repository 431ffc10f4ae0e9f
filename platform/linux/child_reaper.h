// Programs that were started and not waited for.
#ifndef PLATFORM_LINUX_CHILD_REAPER_H_
#define PLATFORM_LINUX_CHILD_REAPER_H_

#include <sys/types.h>

#include <cstdint>
#include <string_view>
#include <vector>

namespace velmohelp {

/// Remembers them, and at later calls takes from the system those that have
/// ended, each by its own number: a host that lives for weeks has no zombies,
/// and never loses a child of its own. Those that have not ended when this
/// object does stay the host's.
class ChildReaper {
 public:
  ChildReaper() = default;
  ChildReaper(const ChildReaper&) = delete;
  ChildReaper& operator=(const ChildReaper&) = delete;
  ~ChildReaper() { Reap(); }

  /// Makes room for one more, before it is started: a child that could not be
  /// remembered for lack of memory would stay a zombie.
  void Prepare();

  /// Remembers a child. Never fails after Prepare.
  void Remember(pid_t process);

  /// Takes those that have ended. Never blocks.
  void Reap();

  /// A child that is remembered has not ended. Reaps.
  bool IsRunning(pid_t process);

  /// Kills a child that is remembered and has not ended.
  void End(pid_t process);

 private:
  struct Child {
    pid_t process;
    /// When it was remembered, in clock ticks since boot.
    std::uint64_t since;
  };

  static bool IsOurs(const Child& child);
  std::vector<Child>::iterator Find(pid_t process);

  std::vector<Child> children_;
};

/// The start time (clock ticks since boot) in the text of /proc/<pid>/stat; 0
/// when the text has none.
std::uint64_t StartTimeInText(std::string_view text);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_CHILD_REAPER_H_
