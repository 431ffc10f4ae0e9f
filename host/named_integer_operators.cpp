// The operators of named integers. Each replaces the named integers by plain
// values and leaves the rest to Lua.
#include "host/named_integer.h"

namespace velmohelp {
namespace {

/// An operator's metamethod, and Lua's number for the operation.
struct Operator {
  const char* event;
  int operation;
};

constexpr Operator kArithmetic[] = {
    {"__add", LUA_OPADD},   {"__sub", LUA_OPSUB},  {"__mul", LUA_OPMUL},
    {"__mod", LUA_OPMOD},   {"__pow", LUA_OPPOW},  {"__div", LUA_OPDIV},
    {"__idiv", LUA_OPIDIV}, {"__unm", LUA_OPUNM},  {"__band", LUA_OPBAND},
    {"__bor", LUA_OPBOR},   {"__shl", LUA_OPSHL},  {"__bxor", LUA_OPBXOR},
    {"__shr", LUA_OPSHR},   {"__bnot", LUA_OPBNOT}};

constexpr Operator kComparisons[] = {{"__lt", LUA_OPLT}, {"__le", LUA_OPLE}};

int OperationOf(lua_State* state) {
  return static_cast<int>(lua_tointeger(state, lua_upvalueindex(1)));
}

void PutNumber(lua_State* state, int index) {
  const NamedInteger* named = ToNamedInteger(state, index);
  if (named == nullptr) return;
  lua_pushinteger(state, named->value);
  lua_replace(state, index);
}

void PutText(lua_State* state, int index) {
  const NamedInteger* named = ToNamedInteger(state, index);
  if (named == nullptr) return;
  PushText(state, *named);
  lua_replace(state, index);
}

/// Raises an error for an operand that does not fit and has no such operator of
/// its own. Lua would do so too, but without the script's line in its message.
void Require(lua_State* state, bool fits, int index, const char* action) {
  const char* event = lua_tostring(state, lua_upvalueindex(2));
  if (fits) return;
  if (luaL_getmetafield(state, index, event) == LUA_TNIL) {
    luaL_error(state, "attempt to %s a %s value", action,
               luaL_typename(state, index));
  }
  lua_pop(state, 1);
}

int Calculate(lua_State* state) {
  lua_settop(state, 2);
  for (int i = 1; i <= 2; ++i) {
    PutNumber(state, i);
    Require(state, lua_isnumber(state, i), i, "perform arithmetic on");
  }
  lua_arith(state, OperationOf(state));
  return 1;
}

int Compare(lua_State* state) {
  lua_settop(state, 2);
  for (int i = 1; i <= 2; ++i) {
    PutNumber(state, i);
    Require(state, lua_type(state, i) == LUA_TNUMBER, i,
            "compare a named integer with");
  }
  lua_pushboolean(state, lua_compare(state, 1, 2, OperationOf(state)));
  return 1;
}

int Concatenate(lua_State* state) {
  lua_settop(state, 2);
  for (int i = 1; i <= 2; ++i) {
    PutText(state, i);
    Require(state, lua_isstring(state, i), i, "concatenate");
  }
  lua_concat(state, 2);
  return 1;
}

void SetOperator(lua_State* state, const Operator& row,
                 lua_CFunction function) {
  lua_pushinteger(state, row.operation);
  lua_pushstring(state, row.event);
  lua_pushcclosure(state, function, 2);
  lua_setfield(state, -2, row.event);
}

}  // namespace

void SetOperators(lua_State* state) {
  for (const Operator& row : kArithmetic) SetOperator(state, row, Calculate);
  for (const Operator& row : kComparisons) SetOperator(state, row, Compare);
  SetOperator(state, {"__concat", 0}, Concatenate);
}

}  // namespace velmohelp
