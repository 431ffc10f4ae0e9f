// Named integers: what scripts get for a result code. A named integer is a
// number with a name: it compares and calculates like the number, and prints as
// the name.
//
// Lua itself decides that "==" between values of different kinds is false, and
// calls no metamethod. So r == 7 is false for every named integer r, while
// r <= 7, r == other_named_integer, r.value == 7 and r.name ==
// "pageidDoesNotExist" work as expected. A metatable for all numbers would not
// help, and would change every other script.
//
// Everything here may raise a script error, also when out of memory, and then
// does not return. That skips destructors, so callers must have no object with
// one.
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
/// the value there is something else.
const NamedInteger* ToNamedInteger(lua_State* state, int index);

/// Pushes the named integer as text: its name, or its number when the table has
/// no name for it.
void PushText(lua_State* state, const NamedInteger& named);

/// Adds the operators to the metatable on top of the stack.
void SetOperators(lua_State* state);

/// Pushes a table with each of the named integers under its name. Any other
/// name is a script error: a misspelt name must not read as nil.
void PushConstants(lua_State* state, const LxNamedIntegerTable& table);

}  // namespace velmohelp

#endif  // HOST_NAMED_INTEGER_H_
