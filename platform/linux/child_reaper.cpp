#include "platform/linux/child_reaper.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <ctime>

#include "platform/linux/retry_on_eintr.h"
#include "platform/linux/unique_fd.h"

namespace velmohelp {
namespace {

/// Fields of /proc/<pid>/stat from the one behind the program's name (state)
/// to the start time.
constexpr int kFieldsBeforeStartTime = 19;

/// When a process started; 0 when that cannot be told.
std::uint64_t StartTime(pid_t process) {
  char path[32];
  char text[1024];
  std::snprintf(path, sizeof path, "/proc/%d/stat", static_cast<int>(process));
  const UniqueFd file(open(path, O_RDONLY | O_CLOEXEC));
  if (!file) return 0;
  const ssize_t got =
      RetryOnEintr([&] { return read(file.get(), text, sizeof text); });
  if (got <= 0) return 0;
  return StartTimeInText({text, static_cast<std::size_t>(got)});
}

/// The time in the unit of a process's start time.
std::uint64_t TicksSinceBoot() {
  constexpr std::uint64_t kNanoseconds = 1'000'000'000;
  timespec now = {};
  clock_gettime(CLOCK_BOOTTIME, &now);
  const auto ticks = static_cast<std::uint64_t>(sysconf(_SC_CLK_TCK));
  return static_cast<std::uint64_t>(now.tv_sec) * ticks +
         static_cast<std::uint64_t>(now.tv_nsec) / (kNanoseconds / ticks);
}

enum class State : std::uint8_t { kRunning, kEnded, kNoChild };

/// The state of a child of the host's, which stays as it is.
State StateOf(pid_t process) {
  siginfo_t ended = {};
  const int result = RetryOnEintr([&] {
    return waitid(P_PID, static_cast<id_t>(process), &ended,
                  WEXITED | WNOHANG | WNOWAIT);
  });
  if (result != 0) return State::kNoChild;
  return ended.si_pid == 0 ? State::kRunning : State::kEnded;
}

void Take(pid_t process) {
  RetryOnEintr([&] { return waitpid(process, nullptr, WNOHANG); });
}

}  // namespace

std::uint64_t StartTimeInText(std::string_view text) {
  // The program's name stands in parentheses and may hold some itself.
  const std::size_t name_end = text.rfind(") ");
  if (name_end == std::string_view::npos) return 0;
  text.remove_prefix(name_end + 2);
  for (int field = 0; field < kFieldsBeforeStartTime; ++field) {
    const std::size_t blank = text.find(' ');
    if (blank == std::string_view::npos) return 0;
    text.remove_prefix(blank + 1);
  }
  std::uint64_t ticks = 0;
  std::from_chars(text.data(), text.data() + text.size(), ticks);
  return ticks;
}

void ChildReaper::Prepare() { children_.reserve(children_.size() + 1); }

void ChildReaper::Remember(pid_t process) {
  children_.push_back({process, TicksSinceBoot()});
}

/// A host that waits for any child may have taken ours, and its number may be
/// that of a later child of the host's by now, whose end is not ours to take.
/// Within the same tick both answers would be the same, and none is asked for:
/// most of ours are short, and to read a process's state costs much.
bool ChildReaper::IsOurs(const Child& child) {
  return TicksSinceBoot() == child.since ||
         StartTime(child.process) <= child.since;
}

void ChildReaper::Reap() {
  std::erase_if(children_, [](const Child& child) {
    const State state = StateOf(child.process);
    if (state == State::kEnded && IsOurs(child)) Take(child.process);
    return state != State::kRunning;
  });
}

bool ChildReaper::IsRunning(pid_t process) {
  Reap();
  return Find(process) != children_.end();
}

void ChildReaper::End(pid_t process) {
  Reap();
  const auto child = Find(process);
  if (child != children_.end() && IsOurs(*child)) kill(process, SIGKILL);
}

std::vector<ChildReaper::Child>::iterator ChildReaper::Find(pid_t process) {
  return std::find_if(
      children_.begin(), children_.end(),
      [&](const Child& child) { return child.process == process; });
}

}  // namespace velmohelp
