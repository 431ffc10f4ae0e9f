/* A program without the Lx... operations that loads the plug-in, and then a Lua
 * state that wants the module: the plug-in has bound its references already.
 * Prints the script's error; arguments: the plug-in, the module's search path.
 */
#include <dlfcn.h>
#include <lauxlib.h>
#include <lualib.h>
#include <stdio.h>

int main(int argc, char** argv) {
  if (argc != 3 || dlopen(argv[1], RTLD_NOW | RTLD_GLOBAL) == NULL) return 2;
  lua_State* state = luaL_newstate();
  luaL_openlibs(state);
  lua_pushstring(state, argv[2]);
  lua_setglobal(state, "path");
  if (luaL_dostring(state, "package.cpath = path require 'velmohelp'")) {
    puts(lua_tostring(state, -1));
  }
  lua_close(state);
  return 0;
}
