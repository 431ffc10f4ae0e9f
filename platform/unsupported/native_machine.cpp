#include "platform/machine.h"
#include "platform/unsupported/unsupported_machine.h"
#include "util/no_destructor.h"

namespace velmohelp {

Machine& NativeMachine() {
  static NoDestructor<UnsupportedMachine> machine;
  return *machine;
}

}  // namespace velmohelp
