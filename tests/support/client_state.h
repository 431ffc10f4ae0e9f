// The client's state between tests that share a process.
#ifndef TESTS_SUPPORT_CLIENT_STATE_H_
#define TESTS_SUPPORT_CLIENT_STATE_H_

namespace velmohelp::testing {

/// Gives every variable of the state its value at load.
void ResetClientState();

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_CLIENT_STATE_H_
