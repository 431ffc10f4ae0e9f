// A machine that can do nothing: what the client is on a system that nobody
// has written a folder for yet, and the template for writing one.
#ifndef PLATFORM_UNSUPPORTED_UNSUPPORTED_MACHINE_H_
#define PLATFORM_UNSUPPORTED_UNSUPPORTED_MACHINE_H_

#include <optional>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

class UnsupportedMachine : public Machine {
 public:
#include "platform/machine_overrides.inc"
};

}  // namespace velmohelp

#endif  // PLATFORM_UNSUPPORTED_UNSUPPORTED_MACHINE_H_
