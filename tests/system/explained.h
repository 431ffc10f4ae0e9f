// What velmo-help says of a request before a host makes it.
#ifndef TESTS_SYSTEM_EXPLAINED_H_
#define TESTS_SYSTEM_EXPLAINED_H_

#include <string>

#include "tests/system/help_world.h"

namespace velmohelp::testing {

/// A finished run of velmo-help.
struct ToolProcess {
  int status = -1;
  std::string out;
  std::string err;
};

/// Runs velmo-help, or another build of it, in a world, in the environment of
/// its host. Not where the tool is left out of the build.
ToolProcess RunToolIn(HelpWorld& world, const Words& arguments,
                      const char* tool = nullptr);

/// The test fails unless `velmo-help explain` says that the host's request,
/// for Foo in en_US, returns this code and starts this; both may name places.
void ExpectExplained(HelpWorld& world, const Words& request,
                     const std::string& code, const Words& started);

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_EXPLAINED_H_
