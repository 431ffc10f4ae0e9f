#include "exports/this_machine.h"

namespace velmohelp {
namespace {

Machine* machine_in_use = nullptr;

}  // namespace

Machine& ThisMachine() {
  return machine_in_use != nullptr ? *machine_in_use : NativeMachine();
}

void UseMachine(Machine* machine) { machine_in_use = machine; }

}  // namespace velmohelp
