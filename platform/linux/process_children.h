// What the two processes of a start do between clone and exec.
#ifndef PLATFORM_LINUX_PROCESS_CHILDREN_H_
#define PLATFORM_LINUX_PROCESS_CHILDREN_H_

#include <cstddef>

#include "platform/linux/process.h"

namespace velmohelp {

/// What the intermediate process reports. It is in shared memory until a start
/// has shown that the children work in the host's memory: where vfork is
/// emulated as fork (valgrind, qemu-user) they have a copy of all other memory.
struct LaunchReport {
  /// The rest is valid.
  bool complete;
  /// errno of the step that failed; 0: the program was started.
  int error;
  bool running;
  /// As waitpid has it.
  int status;
  /// Bytes in output; -1: the read failed.
  std::ptrdiff_t output_size;
  char output[4096];
};

/// Everything that the children need. They only read it, but for the report and
/// for what says whose memory they work in.
struct Launch {
  const char* program;
  char* const* words;
  char* const* environment;
  WaitFor wait_for;
  int output;
  bool own_session;
  bool drop_errors;
  long time_limit_milliseconds;
  /// Where the program's process has its stack until exec: the highest address.
  void* program_stack;
  LaunchReport* report;
  /// Set by the intermediate process, which the host sees unless that process
  /// has a copy of the host's memory.
  bool shares_memory = false;
};

/// The intermediate process: starts the program, waits for it and reports.
/// argument: a Launch. For clone, with all signals blocked; does not return.
///
/// It shares the host's memory while the host's thread is suspended. Hence it
/// makes system calls and nothing else: no allocation, no lock, no cancellation
/// point, no C library function that keeps state; errno is the host's.
int RunIntermediate(void* argument);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_PROCESS_CHILDREN_H_
