// What a script gets from require "velmohelp", in lxhost and in the stock
// interpreter alike.
#ifndef HOST_HELP_MODULE_H_
#define HOST_HELP_MODULE_H_

#include <cstdint>
#include <lua.hpp>

namespace velmohelp {

/// What the module calls in the plug-in: its load entry points, and the
/// requests of <velmohelp/velmohelp.h> that have no namespace.
struct Plugin {
  lua_CFunction load_help;
  lua_CFunction load_help_worker;
  std::uint32_t (*open_url)(const char*);
  std::uint32_t (*search)(const char*, const char*, const char*);
  std::uint32_t (*online_status)();
};

/// Calls both entry points and pushes the module, a table of
///   LxHelp, LxHelpWorker       the namespaces, which are globals as well
///   openURL, search, status    functions
///   InitReturnCode, DisplayPageReturnCode, OpenUrlReturnCode,
///   SearchReturnCode, OnlineStatusReturnCode    the named results
/// Raises a script error when the plug-in registers nothing, and when memory
/// runs out. Copies the plugin.
void PushHelpModule(lua_State* state, const Plugin& plugin);

}  // namespace velmohelp

#endif  // HOST_HELP_MODULE_H_
