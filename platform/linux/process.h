// Starting a program: the one place that makes processes.
#ifndef PLATFORM_LINUX_PROCESS_H_
#define PLATFORM_LINUX_PROCESS_H_

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// How long the caller waits for a program.
enum class WaitFor : std::uint8_t { kStart, kFirstOutput, kEnd };

/// A program, its arguments, and how it is started.
struct ProgramStart {
  std::string program;
  Arguments arguments = {};
  WaitFor wait_for = WaitFor::kStart;
  /// Becomes its standard output, which is /dev/null otherwise; -1: none. The
  /// number is above those of the standard streams; the caller keeps it.
  int output = -1;
  /// In a session of its own it survives the host's: closing the terminal does
  /// not end it.
  bool own_session = false;
  /// Its standard error is /dev/null, not the host's.
  bool drop_errors = false;
  /// See ChildEnvironment.
  std::optional<std::string> activation_token = {};
  /// SIGALRM ends the program after this time unless it changes its timer;
  /// zero: no limit.
  std::chrono::milliseconds time_limit{0};
};

/// What is known of a program that was started.
struct ProgramReport {
  /// kStart: it had not ended yet.
  bool running = false;
  /// kFirstOutput: what one read of its standard output returned, at most 4096
  /// bytes; nullopt when the read failed.
  std::optional<std::string> output;
  /// kEnd: its exit status; nullopt when a signal ended it.
  std::optional<int> exit_status;
};

/// Starts the program at a path, without a shell and without a search in PATH.
/// nullopt when it could not be started: errors of exec are reported here.
///
/// The host gains no child. An intermediate process, which a wait() of the
/// host does not see and which raises no SIGCHLD, starts the program as its own
/// child, waits as long as wait_for says, and ends; the program then belongs to
/// init (or to the host, if the host is init or a child subreaper). No thread
/// of the host can steal the exit status, and the host's handling of SIGCHLD
/// does not matter. The calling thread is suspended until the intermediate
/// process ends: a debugger or job control cannot stop it meanwhile, and its
/// signals wait.
///
/// The program has no blocked signal, every signal's default action, normal
/// scheduling, nice value 0 (where the system permits it), all processors, the
/// real user and group ids, ChildEnvironment, /dev/null as standard input and
/// output, and none of the host's descriptors but 2 (/dev/null where the host
/// has closed it).
std::optional<ProgramReport> StartProcess(const ProgramStart& start);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_PROCESS_H_
