// A session bus in the network that a test has made.
#ifndef TESTS_SYSTEM_SESSION_BUS_H_
#define TESTS_SYSTEM_SESSION_BUS_H_

#include <string>

namespace velmohelp::testing {

/// Its address; the name is the network's own.
inline constexpr char kBusAddress[] = "unix:abstract=velmohelp-bus";

/// Starts a bus that would start the desktop's portal when somebody calls it,
/// as a child of this process that ends with it. False when that fails.
/// folder: takes the bus's files.
bool StartBusWithPortal(const std::string& folder);

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_SESSION_BUS_H_
