// The world of a test that calls the exported functions.
#ifndef TESTS_SUPPORT_EXPORTED_WORLD_H_
#define TESTS_SUPPORT_EXPORTED_WORLD_H_

#include "exports/this_client.h"
#include "tests/support/client_world.h"
#include "tests/support/this_machine.h"

namespace velmohelp::testing {

/// A ClientWorld whose client is the one that the exported functions run.
class ExportedWorld : public ClientWorld {
 public:
  explicit ExportedWorld(ScriptedMachine& machine)
      : ClientWorld(machine, ThisState()), on_machine_(machine) {}
  ExportedWorld() : ClientWorld(ThisState()), on_machine_(machine()) {}

 private:
  const OnMachine on_machine_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_EXPORTED_WORLD_H_
