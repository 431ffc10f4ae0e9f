// A machine that fails once, for tests of how the client handles it.
#ifndef PLATFORM_SCRIPTED_FAULT_MACHINE_H_
#define PLATFORM_SCRIPTED_FAULT_MACHINE_H_

#include <optional>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// Passes every question on to another machine except one, which fails as
/// "this machine cannot".
class FaultMachine : public Machine {
 public:
  /// fails_at: the number of the question that fails, from 1; 0 for none.
  FaultMachine(Machine& machine, int fails_at)
      : machine_(machine), fails_at_(fails_at) {}

  /// How many questions were asked so far.
  int Asked() const { return asked_; }

#include "platform/machine_overrides.inc"

 private:
  bool Fails() { return ++asked_ == fails_at_; }

  Machine& machine_;
  int fails_at_;
  int asked_ = 0;
};

}  // namespace velmohelp

#endif  // PLATFORM_SCRIPTED_FAULT_MACHINE_H_
