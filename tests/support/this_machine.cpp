#include "tests/support/this_machine.h"

#include "exports/this_client.h"
#include "tests/support/client_variables.h"

namespace velmohelp {
namespace {

constinit Machine* machine_in_use = nullptr;

}  // namespace

Machine& ThisMachine() {
  return machine_in_use != nullptr ? *machine_in_use : NativeMachine();
}

namespace testing {

OnMachine::OnMachine(Machine& machine) {
  SetAsAtLoad(ThisState());
  machine_in_use = &machine;
}

OnMachine::~OnMachine() { machine_in_use = nullptr; }

}  // namespace testing
}  // namespace velmohelp
