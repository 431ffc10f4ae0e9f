// A host program as a process of its own.
#ifndef TESTS_SYSTEM_HOST_PROCESS_H_
#define TESTS_SYSTEM_HOST_PROCESS_H_

#include <sys/types.h>

#include <functional>
#include <string>

#include "tests/system/words.h"

namespace velmohelp::testing {

/// How a host program is started.
struct HostStart {
  std::string program;
  std::string plug_in;
  /// The whole environment.
  Words environment;
  /// Takes the host's standard error output.
  std::string errors;
  /// Made in the new process before the program starts, which is left out
  /// when it says no.
  std::function<bool()> preparation = [] { return true; };
};

/// A running host. The programs that the library starts in it are children of
/// the test, which ends them with EndChildren.
class HostProcess {
 public:
  explicit HostProcess(const HostStart& start);
  HostProcess(const HostProcess&) = delete;
  HostProcess& operator=(const HostProcess&) = delete;
  ~HostProcess();

  /// Makes a request; returns its result, or "dead".
  std::string Ask(const Words& request) const;

  /// Ends the host as a person would, and waits for it; its exit status, -1
  /// when a signal ended it.
  int End();

  pid_t pid() const { return process_; }

  /// A line of /proc/<pid>/status, without its name.
  std::string StatusLine(const std::string& name) const;
  /// How many entries /proc/<pid>/<folder> has.
  std::size_t CountIn(const std::string& folder) const;

 private:
  [[noreturn]] static void Become(const HostStart& start, int socket);

  int socket_ = -1;
  pid_t process_ = -1;
};

/// The children of a process.
std::vector<pid_t> ChildrenOf(pid_t process);

/// Waits until a process has ended, whoever its parent is.
void AwaitEnd(pid_t process);

/// The program that a process runs; "" when it has ended. (Its argument vector
/// is not there yet when a start returns.)
std::string ProgramOf(pid_t process);

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_HOST_PROCESS_H_
