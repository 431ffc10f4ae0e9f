#include "platform/linux/linux_machine.h"

namespace velmohelp {

// Made at the first request: loading the library runs none of this code.
Machine& NativeMachine() {
  static LinuxMachine machine;
  return machine;
}

}  // namespace velmohelp
