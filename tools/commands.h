// The subcommands of velmo-help. Each is defined in a folder of its own.
#ifndef TOOLS_COMMANDS_H_
#define TOOLS_COMMANDS_H_

#include "tools/command.h"

namespace velmohelp::tool {

AddCommand AddCheckCommand;
AddCommand AddDisplayCommand;
AddCommand AddExplainCommand;
AddCommand AddImportCommand;
AddCommand AddNewCommand;
AddCommand AddOpenCommand;
AddCommand AddSearchCommand;
AddCommand AddStatusCommand;

/// In the order of the help text.
inline constexpr AddCommand* kCommands[] = {
#ifdef VELMO_TOOL_HAS_A_MACHINE
    AddExplainCommand, AddDisplayCommand, AddOpenCommand,
    AddSearchCommand,  AddStatusCommand,
#endif
    AddCheckCommand,   AddNewCommand,     AddImportCommand};

}  // namespace velmohelp::tool

#endif  // TOOLS_COMMANDS_H_
