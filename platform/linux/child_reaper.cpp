#include "platform/linux/child_reaper.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstdio>

#include "platform/linux/descriptor.h"
#include "platform/linux/retry.h"

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
  const Descriptor file(open(path, O_RDONLY | O_CLOEXEC));
  if (!file) return 0;
  const ssize_t got =
      Retry([&] { return read(file.number(), text, sizeof text); });
  if (got <= 0) return 0;
  return StartTimeInText({text, static_cast<std::size_t>(got)});
}

/// A host that waits for any child may have taken ours, and its number may be
/// that of a child of the host's by now, whose end is not ours to take.
bool IsStill(std::uint64_t start_time, pid_t process) {
  const std::uint64_t now = StartTime(process);
  return start_time == 0 || now == 0 || now == start_time;
}

/// True when there is nothing left to wait for.
bool IsGone(pid_t process) {
  return Retry([&] { return waitpid(process, nullptr, WNOHANG); }) != 0;
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
  children_.push_back({process, StartTime(process)});
}

void ChildReaper::Reap() {
  std::erase_if(children_, [](const Child& child) {
    return !IsStill(child.start_time, child.process) || IsGone(child.process);
  });
}

bool ChildReaper::IsRunning(pid_t process) {
  Reap();
  return std::any_of(
      children_.begin(), children_.end(),
      [&](const Child& child) { return child.process == process; });
}

void ChildReaper::End(pid_t process) {
  if (IsRunning(process)) kill(process, SIGKILL);
}

}  // namespace velmohelp
