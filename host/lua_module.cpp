// The Lua module, for require "velmohelp" in the stock interpreter. It brings
// the Lx... operations along, and the plug-in as a library that it needs; the
// Lua library itself is the interpreter's.
#include <velmohelp/script_host.h>

#include "host/help_module.h"

extern "C" VELMOHELP_API int luaopen_velmohelp(lua_State* state) {
  velmohelp::PushHelpModule(state,
                            {private_load_LxHelp, private_load_LxHelpWorker});
  return 1;
}
