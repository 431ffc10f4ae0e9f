// The command line of velmo-help.
#ifndef TOOLS_COMMAND_LINE_H_
#define TOOLS_COMMAND_LINE_H_

#include <span>
#include <string>

#include "tools/console.h"

namespace velmohelp::tool {

/// Exit statuses of the tool itself. Lower ones are results: of a check, or of
/// a request to the client. The numbers are those of sysexits.h.
enum ExitStatus : int {
  kExitUsage = 64,
  kExitBadInput = 65,
  kExitInternal = 70,
  kExitFile = 74,
};

/// Runs the command that the arguments name, program name not included, and
/// returns the exit status. Throws nothing.
int RunCommandLine(std::span<const std::string> arguments,
                   const Console& console);

}  // namespace velmohelp::tool

#endif  // TOOLS_COMMAND_LINE_H_
