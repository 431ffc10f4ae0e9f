// The variables of a client that a test owns.
#ifndef TESTS_SUPPORT_CLIENT_VARIABLES_H_
#define TESTS_SUPPORT_CLIENT_VARIABLES_H_

#include <string>
#include <vector>

#include "client/client_variables.h"

namespace velmohelp::testing {

using velmohelp::ClientVariables;

/// Gives every variable of a state its value at load.
void SetAsAtLoad(ClientState& state);

/// Every variable of a state, as its exported name and its value:
/// "sInitStatus 0", "sLocale \"en_US\""; of sHelpPaths and sHelpMap how many
/// rows are filled.
std::vector<std::string> Described(const ClientState& state);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_CLIENT_VARIABLES_H_
