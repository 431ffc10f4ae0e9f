// The Lua module: require "velmohelp" in the stock interpreter. It contains the
// Lx... operations and links the plug-in as a library; the interpreter brings
// the Lua library.
#include <velmohelp/script_host.h>
#include <velmohelp/velmohelp.h>

#include "host/help_module.h"

extern "C" VELMOHELP_API int luaopen_velmohelp(lua_State* state) {
  velmohelp::PushHelpModule(
      state, {private_load_LxHelp, private_load_LxHelpWorker, OpenURL,
              SearchHelp, GetVelmoHelpClientOnlineStatus});
  return 1;
}
