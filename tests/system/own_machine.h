// A machine of a process's own: a file system whose fixed places are a test's,
// and a network in which nothing else is.
#ifndef TESTS_SYSTEM_OWN_MACHINE_H_
#define TESTS_SYSTEM_OWN_MACHINE_H_

#include <string>

namespace velmohelp::testing {

/// Moves this process to one where /Library is the folder "Library", /etc/velmo
/// the folder "velmo", /etc/ssl the folder "ssl" where there is one, and
/// /etc/hosts and /etc/resolv.conf are the files "hosts" and "resolv.conf" in
/// that folder. The rest of the file system is the system's; the loopback
/// interface is down. False when this system lets the process make none.
bool EnterOwnMachine(const std::string& folder);

/// The same with the system's own network.
bool EnterOwnFiles(const std::string& folder);

/// Makes localhost reachable there.
bool RaiseLoopback();

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_OWN_MACHINE_H_
