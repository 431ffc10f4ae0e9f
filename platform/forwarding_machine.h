// A machine that passes every question on: the base of those that change a few.
#ifndef PLATFORM_FORWARDING_MACHINE_H_
#define PLATFORM_FORWARDING_MACHINE_H_

#include <optional>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// Passes each call on to another machine, which outlives it. A derived machine
/// overrides what it wants to watch, change or leave out; a verb that the seam
/// gains later is passed on.
class ForwardingMachine : public Machine {
 public:
  explicit ForwardingMachine(Machine& machine) : machine_(machine) {}

#include "platform/machine_overrides.inc"

 protected:
  /// The machine that the calls go to.
  Machine& machine() const { return machine_; }

 private:
  Machine& machine_;
};

}  // namespace velmohelp

#endif  // PLATFORM_FORWARDING_MACHINE_H_
