// The client's state between tests that share a process.
#ifndef TESTS_SUPPORT_CLIENT_STATE_H_
#define TESTS_SUPPORT_CLIENT_STATE_H_

#include <string>
#include <vector>

namespace velmohelp::testing {

/// Gives every variable of the state its value at load.
void ResetClientState();

/// Every variable of the state, as its name and its value, "sInitStatus 0" and
/// "sLocale \"en_US\""; of sHelpPaths and sHelpMap how many rows are filled.
std::vector<std::string> DescribeClientState();

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_CLIENT_STATE_H_
