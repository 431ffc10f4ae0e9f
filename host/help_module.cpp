#include "host/help_module.h"

#include "exports/result_codes.h"
#include "host/named_integer.h"

namespace velmohelp {
namespace {

/// Sets a field of the module on top of the stack to the global of that name.
/// There is none when a program without the Lx... operations loaded the plug-in
/// before this one: the dynamic linker then found nobody to register with.
void SetNamespace(lua_State* state, const char* name) {
  lua_pushglobaltable(state);
  lua_pushstring(state, name);
  if (lua_rawget(state, -2) != LUA_TTABLE) {
    luaL_error(state, "libvelmohelp has registered no '%s'", name);
  }
  lua_setfield(state, -3, name);
  lua_pop(state, 1);
}

}  // namespace

void PushHelpModule(lua_State* state, const LoadEntryPoints& plugin) {
  luaL_checkstack(state, LUA_MINSTACK, "no room for the help module");
  plugin.help(state);
  plugin.help_worker(state);
  lua_newtable(state);
  SetNamespace(state, "LxHelp");
  SetNamespace(state, "LxHelpWorker");
  PushConstants(state, kInitReturnCode.header);
  lua_setfield(state, -2, "InitReturnCode");
  PushConstants(state, kDisplayPageReturnCode.header);
  lua_setfield(state, -2, "DisplayPageReturnCode");
}

}  // namespace velmohelp
