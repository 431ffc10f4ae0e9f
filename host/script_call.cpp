// The host's operations that let scripts call the plug-in. A script error
// leaves them by longjmp: no object with a destructor lives here.
#include <velmohelp/script_host.h>

#include <cstring>
#include <lua.hpp>

namespace {

/// Pushes the global table of that name, after creating it if necessary. Raw
/// access: a host that forbids undeclared globals means its scripts, not us.
void PushNamespace(lua_State* state, const char* name) {
  lua_pushglobaltable(state);
  lua_pushstring(state, name);
  if (lua_rawget(state, -2) == LUA_TNIL) {
    lua_pop(state, 1);
    lua_newtable(state);
    lua_pushstring(state, name);
    lua_pushvalue(state, -2);
    lua_rawset(state, -4);
  }
  if (!lua_istable(state, -1)) {
    luaL_error(state, "the global '%s' is not a table", name);
  }
  lua_remove(state, -2);
}

/// Registers the table on top of the stack as a library. Lua then names its
/// functions in messages and tracebacks, however the script called them.
void NameAsLibrary(lua_State* state, const char* name) {
  luaL_getsubtable(state, LUA_REGISTRYINDEX, LUA_LOADED_TABLE);
  lua_pushvalue(state, -2);
  lua_setfield(state, -2, name);
  lua_pop(state, 1);
}

}  // namespace

VELMOHELP_API void LxNamespace_exportFunctions(LxState* state,
                                               const char* namespaceName,
                                               const LxRegistration* table) {
  luaL_checkstack(state, LUA_MINSTACK, "no room for a namespace");
  PushNamespace(state, namespaceName);
  for (const auto* row = table; row->name != nullptr; ++row) {
    lua_pushcfunction(state, row->function);
    lua_setfield(state, -2, row->name);
  }
  NameAsLibrary(state, namespaceName);
  lua_pop(state, 1);
}

/// A number counts as its text, as in Lua's own libraries. The plug-in reads up
/// to the first zero byte: a string that contains one is refused, not cut.
VELMOHELP_API const char* LxLua_checkString(LxState* state, int index) {
  std::size_t size = 0;
  const char* text = luaL_checklstring(state, index, &size);
  luaL_argcheck(state, std::strlen(text) == size, index,
                "string contains zeros");
  return text;
}
