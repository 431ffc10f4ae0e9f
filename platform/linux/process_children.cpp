#include "platform/linux/process_children.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "platform/linux/child_code.h"
#include "platform/linux/close_from.h"

#ifdef SYS_setresuid32  // 32-bit systems, whose first calls have 16-bit ids
#define VELMO_SETRESUID SYS_setresuid32
#define VELMO_SETRESGID SYS_setresgid32
#else
#define VELMO_SETRESUID SYS_setresuid
#define VELMO_SETRESGID SYS_setresgid
#endif

namespace velmohelp {
namespace {

/// exec leaves ignored signals ignored: a browser would never learn that its
/// own children have ended, or would outlive a logout. All zeros mean the
/// default action in every layout of the kernel's structure. This process has
/// its own table.
VELMO_CHILD void ResetSignals() {
  constexpr unsigned long kDefaultAction[8] = {};
  for (int signal = 1; signal < NSIG; ++signal) {
    syscall(SYS_rt_sigaction, signal, kDefaultAction, nullptr, kSignalSetSize);
  }
}

VELMO_CHILD void UnblockSignals() {
  constexpr unsigned long kNone[2] = {};
  syscall(SYS_rt_sigprocmask, SIG_SETMASK, kNone, nullptr, kSignalSetSize);
}

/// The host keeps a descriptor from its programs by closing it or by marking it
/// close-on-exec.
VELMO_CHILD bool PassesOn(int fd) {
  const long flags = fcntl(fd, F_GETFD);
  return flags != -1 && (flags & FD_CLOEXEC) == 0;
}

/// The lowest free descriptor becomes /dev/null. Without a /dev an empty file
/// in memory does the same: it reads as empty, and nobody sees what is written.
VELMO_CHILD bool OpenNull() {
  const long null = syscall(SYS_openat, AT_FDCWD, "/dev/null", O_RDWR);
  return null != -1 || syscall(SYS_memfd_create, "null", 0U) != -1;
}

/// A program without a standard stream takes the next file that it opens for
/// one, and prints into it.
VELMO_CHILD bool SetStreams(const Launch& launch) {
  const bool null_errors = launch.drop_errors || !PassesOn(STDERR_FILENO);
  const bool null_output = launch.output < 0;
  CloseFd(STDIN_FILENO);
  if (null_errors) CloseFd(STDERR_FILENO);
  if (null_output) {
    CloseFd(STDOUT_FILENO);
  } else if (dup3(launch.output, STDOUT_FILENO, 0) == -1) {
    return false;
  }
  CloseFrom(STDERR_FILENO + 1);
  if (!OpenNull()) return false;
  if (null_output && dup(STDIN_FILENO) == -1) return false;
  return !null_errors || dup(STDIN_FILENO) != -1;
}

/// Neither a real-time priority nor the one processor that an audio thread is
/// pinned to is good for a browser. What is not permitted stays as it is.
VELMO_CHILD void NormaliseScheduling() {
  constexpr sched_param kNormal = {};
  unsigned char all_processors[1024];
  for (unsigned char& eight : all_processors) eight = 0xFF;
  syscall(SYS_sched_setscheduler, 0, SCHED_OTHER, &kNormal);
  syscall(SYS_setpriority, PRIO_PROCESS, 0, 0);
  syscall(SYS_sched_setaffinity, 0, sizeof all_processors, all_processors);
}

/// The three ids of a process that exec hands on.
template <typename Id>
struct Ids {
  Id real = 0;
  Id effective = 0;
  Id saved = 0;
};

/// A sandbox may refuse to set even the ids that the process has.
template <typename Id>
VELMO_CHILD bool AreAll(Id wanted, const Ids<Id>& ids) {
  return ids.real == wanted && ids.effective == wanted && ids.saved == wanted;
}

VELMO_CHILD bool DropGroup() {
  Ids<gid_t> ids;
  getresgid(&ids.real, &ids.effective, &ids.saved);
  const bool is_roots = getuid() == 0 && ids.real == 0;
  const gid_t group = is_roots ? ids.effective : ids.real;
  return AreAll(group, ids) ||
         syscall(VELMO_SETRESGID, group, group, group) == 0;
}

VELMO_CHILD bool DropUser() {
  Ids<uid_t> ids;
  getresuid(&ids.real, &ids.effective, &ids.saved);
  const uid_t user = ids.real == 0 ? ids.effective : ids.real;
  return AreAll(user, ids) || syscall(VELMO_SETRESUID, user, user, user) == 0;
}

/// A set-user-ID host must not give away what it was given. A host of root's
/// that works as another user hands that user's ids on, not root's. Not by the
/// C library, which would change the ids of all threads of the host.
VELMO_CHILD bool DropPrivileges() { return DropGroup() && DropUser(); }

/// The timer survives exec, and ends a late helper even when the host is gone.
VELMO_CHILD void LimitTime(long milliseconds) {
  const itimerval limit = {{0, 0},
                           {milliseconds / 1000, milliseconds % 1000 * 1000}};
  if (milliseconds > 0) setitimer(ITIMER_REAL, &limit, nullptr);
}

[[noreturn]] VELMO_CHILD void Exit() {
  for (;;) syscall(SYS_exit_group, 127);
}

/// The second process, up to exec.
VELMO_CHILD int RunProgram(void* argument) {
  const Launch& launch = *static_cast<const Launch*>(argument);
  if (launch.own_session) setsid();
  NormaliseScheduling();
  if (DropPrivileges()) {
    LimitTime(launch.time_limit_milliseconds);
    UnblockSignals();
    execve(launch.program, launch.words, launch.environment);
  }
  launch.report->error = errno;
  Exit();
}

/// A pipe that exec closes. Both ends are -1 when it could not be made: only an
/// emulated vfork needs it.
struct ExecPipe {
  int ends[2] = {-1, -1};
};

/// Waits until the program has been started or has failed to. The kernel's
/// vfork has waited for that already; an emulated one does not.
VELMO_CHILD void AwaitExec(const ExecPipe& pipe) {
  char nothing = 0;
  CloseFd(pipe.ends[1]);
  while (syscall(SYS_read, pipe.ends[0], &nothing, 1) > 0) {
  }
  CloseFd(pipe.ends[0]);
}

/// The program's process; -1 when it could not be made.
VELMO_CHILD pid_t StartProgram(const Launch& launch) {
  ExecPipe pipe;
  syscall(SYS_pipe2, pipe.ends, O_CLOEXEC);
  const pid_t process =
      clone(&RunProgram, launch.program_stack, CLONE_VM | CLONE_VFORK | SIGCHLD,
            const_cast<Launch*>(&launch));
  if (process == -1) launch.report->error = errno;
  AwaitExec(pipe);
  return process;
}

/// True when the process has ended. All signals are blocked: no EINTR.
VELMO_CHILD bool Wait(pid_t process, int options, LaunchReport& report) {
  return syscall(SYS_wait4, process, &report.status, options, nullptr) ==
         process;
}

/// A pipe of this process alone. What other threads of the host fork has no
/// copy of it, and so the end of the file comes when the program closes it.
VELMO_CHILD int CaptureOutput(LaunchReport& report) {
  int ends[2] = {-1, -1};
  if (syscall(SYS_pipe2, ends, O_CLOEXEC) == -1 ||
      dup3(ends[1], STDOUT_FILENO, 0) == -1) {
    report.error = errno;
  }
  CloseFd(ends[1]);
  return ends[0];
}

VELMO_CHILD void ReadOutput(int pipe, LaunchReport& report) {
  CloseFd(STDOUT_FILENO);
  report.output_size =
      syscall(SYS_read, pipe, report.output, sizeof report.output);
}

VELMO_CHILD void StartAndWait(const Launch& launch) {
  LaunchReport& report = *launch.report;
  int output = -1;
  if (launch.wait_for == WaitFor::kFirstOutput) output = CaptureOutput(report);
  if (report.error != 0) return;
  const pid_t process = StartProgram(launch);
  if (process == -1) return;
  const bool wait = report.error != 0 || launch.wait_for == WaitFor::kEnd;
  if (launch.wait_for == WaitFor::kFirstOutput) ReadOutput(output, report);
  report.running = !Wait(process, wait ? 0 : WNOHANG, report);
}

}  // namespace

VELMO_CHILD int RunIntermediate(void* argument) {
  Launch& launch = *static_cast<Launch*>(argument);
  launch.shares_memory = true;
  ResetSignals();
  // When the host is killed, this process must not keep its memory alive.
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (SetStreams(launch)) {
    StartAndWait(launch);
  } else {
    launch.report->error = errno;
  }
  launch.report->complete = true;
  Exit();
}

}  // namespace velmohelp
