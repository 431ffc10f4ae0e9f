#include "platform/linux/linux_machine.h"
#include "util/no_destructor.h"

namespace velmohelp {

// Made at the first request: loading the library runs none of this code.
Machine& NativeMachine() {
  static NoDestructor<LinuxMachine> machine;
  return *machine;
}

}  // namespace velmohelp
