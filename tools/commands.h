// The subcommands of velmo-help. Each is defined in a folder of its own.
#ifndef TOOLS_COMMANDS_H_
#define TOOLS_COMMANDS_H_

#include "tools/command.h"

namespace velmohelp::tool {

AddCommand AddCheckCommand;
AddCommand AddImportCommand;
AddCommand AddNewCommand;

/// In the order of the help text.
inline constexpr AddCommand* kCommands[] = {AddCheckCommand, AddNewCommand,
                                            AddImportCommand};

}  // namespace velmohelp::tool

#endif  // TOOLS_COMMANDS_H_
