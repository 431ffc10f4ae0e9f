// What a script gets for require "velmohelp", in the host program and in the
// stock interpreter alike.
#ifndef HOST_HELP_MODULE_H_
#define HOST_HELP_MODULE_H_

#include <lua.hpp>

namespace velmohelp {

/// The plug-in's load entry points.
struct LoadEntryPoints {
  lua_CFunction help;
  lua_CFunction help_worker;
};

/// Calls both entry points and pushes the module: a table with the namespaces
/// LxHelp and LxHelpWorker, which are globals as well, and with the named
/// result codes InitReturnCode and DisplayPageReturnCode. Raises a script error
/// when the plug-in registers nothing, and when memory runs out.
void PushHelpModule(lua_State* state, const LoadEntryPoints& plugin);

}  // namespace velmohelp

#endif  // HOST_HELP_MODULE_H_
