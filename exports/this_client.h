// The client that the exported functions run: this machine, this state. Named
// only in exports/; everything below is handed them.
#ifndef EXPORTS_THIS_CLIENT_H_
#define EXPORTS_THIS_CLIENT_H_

#include "client/client.h"

namespace velmohelp {

/// The machine that the library was built for. In a test program, a machine of
/// the test's.
Machine& ThisMachine();

/// The library's own variables.
ClientState& ThisState();

inline Client ThisClient() { return {ThisMachine(), ThisState()}; }

}  // namespace velmohelp

#endif  // EXPORTS_THIS_CLIENT_H_
