// Named integers: what scripts get for a result code. A named integer is a
// number with its name: it compares and calculates like the number, and prints
// as the name.
//
// One rule is the language's and not ours: "==" between values of different
// kinds is false in Lua, and no operator of ours is asked. So r == 7 is false
// for every named integer r, while r <= 7, r == other_named_integer, r.value ==
// 7 and r.name == "pageidDoesNotExist" say what they seem to say. A metatable
// for all numbers would not change that, and would change every other script.
//
// Everything here may raise a script error (also for want of memory) and then
// does not return; destructors are skipped, so callers have none alive.
#ifndef HOST_NAMED_INTEGER_H_
#define HOST_NAMED_INTEGER_H_

#include <velmohelp/script_host.h>

#include <lua.hpp>

namespace velmohelp {

/// The content of the userdata. The table is the plug-in's, which therefore
/// stays loaded for as long as the state lives.
struct NamedInteger {
  lua_Integer value;
  const LxNamedIntegerTable* table;
};

/// The named integer at an index of the stack, owned by the state; null when
/// another value stands there.
const NamedInteger* ToNamedInteger(lua_State* state, int index);

/// Pushes what the named integer prints as: its name, or its number where the
/// table has no name for it.
void PushText(lua_State* state, const NamedInteger& named);

/// Adds the operators to the metatable on top of the stack.
void SetOperators(lua_State* state);

/// Pushes a table that holds each of the named integers under its name. To ask
/// it for another name is a script error: a misspelt name must not read as nil.
void PushConstants(lua_State* state, const LxNamedIntegerTable& table);

}  // namespace velmohelp

#endif  // HOST_NAMED_INTEGER_H_
