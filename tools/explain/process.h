// Being a running process: its executable, environment and sandbox.
#ifndef TOOLS_EXPLAIN_PROCESS_H_
#define TOOLS_EXPLAIN_PROCESS_H_

#include <string>
#include <vector>

#include "tools/files.h"

namespace velmohelp::tool {

/// What is known of a running host.
struct HostProcess {
  std::string executable = {};
  /// The folder of the client library that it has loaded; "" for none.
  std::string library_folder = {};
  /// "NAME=value", as it was started.
  std::vector<std::string> environment = {};
  /// What keeps this process from seeing the host's files; "" for nothing.
  std::string not_entered = {};
};

/// Reads what the system says of a process, moves this process into its file
/// system and network when they are not this process's own, and takes over its
/// environment. Throws FileError when the process does not exist or belongs to
/// somebody else.
HostProcess BecomeProcess(const std::string& pid);

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_PROCESS_H_
