#include "platform/machine.h"
#include "platform/unsupported/unsupported_machine.h"

namespace velmohelp {

Machine& NativeMachine() {
  static UnsupportedMachine machine;
  return machine;
}

}  // namespace velmohelp
