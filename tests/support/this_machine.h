// The machine of the exported functions in a test program, which links
// this_machine.cpp of this folder in place of the library's own.
#ifndef TESTS_SUPPORT_THIS_MACHINE_H_
#define TESTS_SUPPORT_THIS_MACHINE_H_

#include "platform/machine.h"

namespace velmohelp::testing {

/// While it exists, the exported functions run on a machine, from the state at
/// load. One at a time; without one they run on the native machine.
class OnMachine {
 public:
  explicit OnMachine(Machine& machine);
  ~OnMachine();
  OnMachine(const OnMachine&) = delete;
  OnMachine& operator=(const OnMachine&) = delete;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_THIS_MACHINE_H_
