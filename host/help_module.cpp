#include "host/help_module.h"

#include <velmohelp/script_host.h>

#include <new>
#include <type_traits>

#include "host/named_integer.h"
#include "host/request_results.h"

namespace velmohelp {
namespace {

static_assert(std::is_trivially_destructible_v<Plugin>);

const Plugin& PluginOf(lua_State* state) {
  return *static_cast<const Plugin*>(
      lua_touserdata(state, lua_upvalueindex(1)));
}

int OpenUrl(lua_State* state) {
  const char* url = LxLua_checkString(state, 1);
  LxLua_pushNamedInteger(state, PluginOf(state).open_url(url),
                         &kOpenUrlReturnCode.header);
  return 1;
}

int Search(lua_State* state) {
  const char* product_id = LxLua_checkString(state, 1);
  const char* locale = LxLua_checkString(state, 2);
  const char* text = LxLua_checkString(state, 3);
  LxLua_pushNamedInteger(state,
                         PluginOf(state).search(product_id, locale, text),
                         &kSearchReturnCode.header);
  return 1;
}

int Status(lua_State* state) {
  LxLua_pushNamedInteger(state, PluginOf(state).online_status(),
                         &kOnlineStatusReturnCode.header);
  return 1;
}

constexpr luaL_Reg kFunctions[] = {{"openURL", OpenUrl},
                                   {"search", Search},
                                   {"status", Status},
                                   {nullptr, nullptr}};

struct Constants {
  const char* field;
  const LxNamedIntegerTable& table;
};

constexpr Constants kConstants[] = {
    {"InitReturnCode", kInitReturnCode.header},
    {"DisplayPageReturnCode", kDisplayPageReturnCode.header},
    {"OpenUrlReturnCode", kOpenUrlReturnCode.header},
    {"SearchReturnCode", kSearchReturnCode.header},
    {"OnlineStatusReturnCode", kOnlineStatusReturnCode.header}};

/// Sets a field of the module on top of the stack to the global of that name.
/// The global is missing when a program without the Lx... operations loaded the
/// plug-in first: the dynamic linker then found nobody to register with.
void SetNamespace(lua_State* state, const char* name) {
  lua_pushglobaltable(state);
  lua_pushstring(state, name);
  if (lua_rawget(state, -2) != LUA_TTABLE) {
    luaL_error(state, "libvelmohelp has registered no '%s'", name);
  }
  lua_setfield(state, -3, name);
  lua_pop(state, 1);
}

void SetFunctions(lua_State* state, const Plugin& plugin) {
  new (lua_newuserdatauv(state, sizeof plugin, 0)) Plugin(plugin);
  luaL_setfuncs(state, kFunctions, 1);
}

}  // namespace

void PushHelpModule(lua_State* state, const Plugin& plugin) {
  luaL_checkstack(state, LUA_MINSTACK, "no room for the help module");
  plugin.load_help(state);
  plugin.load_help_worker(state);
  lua_newtable(state);
  SetNamespace(state, "LxHelp");
  SetNamespace(state, "LxHelpWorker");
  SetFunctions(state, plugin);
  for (const Constants& constants : kConstants) {
    PushConstants(state, constants.table);
    lua_setfield(state, -2, constants.field);
  }
}

}  // namespace velmohelp
