// What a test changes about the machine, where nothing else sees it.
#ifndef TESTS_SUPPORT_NAMESPACES_H_
#define TESTS_SUPPORT_NAMESPACES_H_

#include <string>

namespace velmohelp::testing {

/// Moves this process to namespaces of its own, CLONE_NEW... of unshare(2), in
/// which an ordinary user administers them. False when this system allows none.
bool EnterNamespaces(int namespaces);

/// Runs ip(8) with the rights of the network's administrator.
bool RunIp(const std::string& arguments);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_NAMESPACES_H_
