// Reading lines from a person, for the prompt.
#ifndef HOST_LINE_EDITOR_H_
#define HOST_LINE_EDITOR_H_

#include <lua.hpp>

namespace velmohelp {

/// Pushes a function that prints its argument as the prompt and returns the
/// next line of standard input with its line end, or nil at the end of the
/// input. On a terminal the line can be edited, and earlier lines come back;
/// elsewhere nothing is printed. Raises a script error when out of memory.
void PushLineReader(lua_State* state);

}  // namespace velmohelp

#endif  // HOST_LINE_EDITOR_H_
