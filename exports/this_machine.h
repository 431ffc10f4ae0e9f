// The one place where the client's machine is named. Everything below the
// client is handed it.
#ifndef EXPORTS_THIS_MACHINE_H_
#define EXPORTS_THIS_MACHINE_H_

#include "platform/machine.h"

namespace velmohelp {

/// The machine that requests run on: the native one unless another is in use.
Machine& ThisMachine();

/// Makes requests run on another machine, which the caller owns and keeps
/// alive meanwhile; null for the native one again.
void UseMachine(Machine* machine);

}  // namespace velmohelp

#endif  // EXPORTS_THIS_MACHINE_H_
