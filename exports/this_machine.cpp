#include "exports/this_client.h"

namespace velmohelp {

Machine& ThisMachine() { return NativeMachine(); }

}  // namespace velmohelp
