#include "platform/linux/process.h"

#include <sched.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <vector>

#include "platform/linux/child_code.h"
#include "platform/linux/environment.h"
#include "platform/linux/launch_memory.h"
#include "platform/linux/process_children.h"
#include "platform/linux/retry_on_eintr.h"

namespace velmohelp {
namespace {

/// The argument vector; exec takes its words as not constant, and does not
/// change them.
std::vector<char*> WordsOf(const ProgramStart& start) {
  std::vector<char*> words = {const_cast<char*>(start.program.c_str())};
  for (const std::string& argument : start.arguments) {
    words.push_back(const_cast<char*>(argument.c_str()));
  }
  words.push_back(nullptr);
  return words;
}

/// Blocks all signals of this thread, those of the C library among them (which
/// pthread_sigmask leaves alone): a handler of the host's that ran in a child
/// would change the host's memory.
class SignalsBlocked {
 public:
  SignalsBlocked() {
    constexpr unsigned long kAll[] = {~0UL, ~0UL};
    Set(kAll, before_);
  }
  SignalsBlocked(const SignalsBlocked&) = delete;
  SignalsBlocked& operator=(const SignalsBlocked&) = delete;
  ~SignalsBlocked() { Set(before_, nullptr); }

 private:
  static void Set(const unsigned long* now, unsigned long* before) {
    syscall(SYS_rt_sigprocmask, SIG_SETMASK, now, before, kSignalSetSize);
  }
  unsigned long before_[2] = {};
};

/// Children share errno with this thread.
class ErrnoKept {
 public:
  ErrnoKept() = default;
  ErrnoKept(const ErrnoKept&) = delete;
  ErrnoKept& operator=(const ErrnoKept&) = delete;
  ~ErrnoKept() { errno = before_; }

 private:
  int before_ = errno;
};

/// The intermediate process; -1 when it could not be made. With 0 for the
/// signal at its end, a wait() of the host does not see it. An emulator that
/// knows no such processes makes an ordinary child.
pid_t StartIntermediate(Launch& launch, void* stack) {
  constexpr int kFlags = CLONE_VM | CLONE_VFORK;
  const pid_t process = clone(&RunIntermediate, stack, kFlags, &launch);
  if (process != -1 || errno != EINVAL) return process;
  return clone(&RunIntermediate, stack, kFlags | SIGCHLD, &launch);
}

/// Returns when the report is there, or never will be.
void Run(Launch& launch, void* stack) {
  const ErrnoKept errno_kept;
  const SignalsBlocked signals_blocked;
  const pid_t process = StartIntermediate(launch, stack);
  if (process == -1) return;
  RetryOnEintr([&] { return waitpid(process, nullptr, __WALL); });
}

ProgramReport ReportOf(WaitFor wait_for, const LaunchReport& launch) {
  ProgramReport report;
  report.running = launch.running;
  if (wait_for == WaitFor::kFirstOutput && launch.output_size >= 0) {
    report.output.emplace(launch.output,
                          static_cast<std::size_t>(launch.output_size));
  }
  if (!launch.running && WIFEXITED(launch.status)) {
    report.exit_status = WEXITSTATUS(launch.status);
  }
  return report;
}

}  // namespace

std::optional<ProgramReport> StartProcess(const ProgramStart& start) {
  if (start.program.find('\0') != std::string::npos) return std::nullopt;
  const std::vector<char*> words = WordsOf(start);
  const ChildEnvironment environment(start.activation_token);
  const LaunchMemory memory;
  if (!memory) return std::nullopt;
  const LaunchReport& report = *memory.report();
  Launch launch = {.program = start.program.c_str(),
                   .words = words.data(),
                   .environment = environment.pointers(),
                   .wait_for = start.wait_for,
                   .output = start.output,
                   .own_session = start.own_session,
                   .drop_errors = start.drop_errors,
                   .time_limit_milliseconds = start.time_limit.count(),
                   .program_stack = memory.program_stack(),
                   .report = memory.report()};
  Run(launch, memory.intermediate_stack());
  if (launch.shares_memory) LaunchMemory::UsePrivateMemory();
  if (!report.complete || report.error != 0) return std::nullopt;
  return ReportOf(start.wait_for, report);
}

}  // namespace velmohelp
