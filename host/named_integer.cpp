#include "host/named_integer.h"

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace velmohelp {
namespace {

static_assert(sizeof(lua_Integer) == sizeof(std::int64_t));
static_assert(std::is_trivially_destructible_v<NamedInteger>);

// The key in the registry. Two copies of this code in one process, a host
// program's and the Lua module's, so recognise each other's values.
constexpr char kMetatable[] = "velmohelp.NamedInteger";

const NamedInteger& CheckNamedInteger(lua_State* state, int index) {
  return *static_cast<const NamedInteger*>(
      luaL_checkudata(state, index, kMetatable));
}

const char* NameOf(const NamedInteger& named) {
  const LxNamedValue* row = named.table->values;
  while (row->name != nullptr && row->value != named.value) ++row;
  return row->name;
}

int GetField(lua_State* state) {
  const NamedInteger& named = CheckNamedInteger(state, 1);
  const char* field = luaL_tolstring(state, 2, nullptr);
  if (std::strcmp(field, "value") == 0) {
    lua_pushinteger(state, named.value);
  } else if (std::strcmp(field, "name") == 0) {
    lua_pushstring(state, NameOf(named));
  } else if (std::strcmp(field, "type") == 0) {
    lua_pushstring(state, named.table->typeName);
  } else {
    return luaL_error(state, "a named integer has no field '%s'", field);
  }
  return 1;
}

int Print(lua_State* state) {
  PushText(state, CheckNamedInteger(state, 1));
  return 1;
}

int Equal(lua_State* state) {
  const NamedInteger* left = ToNamedInteger(state, 1);
  const NamedInteger* right = ToNamedInteger(state, 2);
  lua_pushboolean(state, left != nullptr && right != nullptr &&
                             left->value == right->value);
  return 1;
}

int RefuseName(lua_State* state) {
  return luaL_error(state, "no \"%s\" in \"%s\"",
                    luaL_tolstring(state, 2, nullptr),
                    lua_tostring(state, lua_upvalueindex(1)));
}

constexpr luaL_Reg kMetamethods[] = {{"__index", GetField},
                                     {"__tostring", Print},
                                     {"__eq", Equal},
                                     {nullptr, nullptr}};

/// Lua's own messages call a value by "__name"; "__metatable" keeps scripts
/// from changing the operators of all results of the state.
void PushNewMetatable(lua_State* state) {
  luaL_newlib(state, kMetamethods);
  SetOperators(state);
  lua_pushliteral(state, "named integer");
  lua_setfield(state, -2, "__name");
  lua_pushliteral(state, "named integer");
  lua_setfield(state, -2, "__metatable");
}

/// Registers the metatable only when it is complete: memory may run out before.
void PushMetatable(lua_State* state) {
  if (luaL_getmetatable(state, kMetatable) != LUA_TNIL) return;
  lua_pop(state, 1);
  PushNewMetatable(state);
  lua_pushvalue(state, -1);
  lua_setfield(state, LUA_REGISTRYINDEX, kMetatable);
}

}  // namespace

const NamedInteger* ToNamedInteger(lua_State* state, int index) {
  return static_cast<const NamedInteger*>(
      luaL_testudata(state, index, kMetatable));
}

void PushText(lua_State* state, const NamedInteger& named) {
  const char* name = NameOf(named);
  if (name != nullptr) {
    lua_pushstring(state, name);
  } else {
    lua_pushfstring(state, "%I", static_cast<LUAI_UACINT>(named.value));
  }
}

void PushConstants(lua_State* state, const LxNamedIntegerTable& table) {
  lua_newtable(state);
  for (const auto* row = table.values; row->name != nullptr; ++row) {
    LxLua_pushNamedInteger(state, row->value, &table);
    lua_setfield(state, -2, row->name);
  }
  lua_createtable(state, 0, 1);
  lua_pushstring(state, table.typeName);
  lua_pushcclosure(state, RefuseName, 1);
  lua_setfield(state, -2, "__index");
  lua_setmetatable(state, -2);
}

}  // namespace velmohelp

VELMOHELP_API void LxLua_pushNamedInteger(LxState* state, int64_t value,
                                          const LxNamedIntegerTable* table) {
  luaL_checkstack(state, LUA_MINSTACK, "no room for a named integer");
  auto* named = static_cast<velmohelp::NamedInteger*>(
      lua_newuserdatauv(state, sizeof(velmohelp::NamedInteger), 0));
  *named = {value, table};
  velmohelp::PushMetatable(state);
  lua_setmetatable(state, -2);
}
