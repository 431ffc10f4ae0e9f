// Starting a program: the one place that makes a process.
#ifndef PLATFORM_LINUX_PROCESS_H_
#define PLATFORM_LINUX_PROCESS_H_

#include <sys/types.h>

#include <optional>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// A program and what it gets beside its arguments. Descriptors that are named
/// here are above those of the standard streams and stay the caller's.
struct ProgramStart {
  std::string program;
  Arguments arguments = {};
  /// Becomes its standard output; -1: it has the host's.
  int output = -1;
  /// Becomes its descriptor VELMO_RUN_STATUS_DESCRIPTOR; -1: it has none.
  int status = -1;
  /// It outlives the host's session: a terminal that closes does not end it.
  bool own_session = false;
};

/// Starts the program at a path, never by a shell and never by a search. It
/// has no blocked signal, every signal's default action, no descriptor of the
/// host's but the standard streams (those that the host has closed are
/// /dev/null), and ChildEnvironment. Returns its process, which the caller
/// waits for or remembers; nullopt when it could not be started.
std::optional<pid_t> StartProcess(const ProgramStart& start);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_PROCESS_H_
