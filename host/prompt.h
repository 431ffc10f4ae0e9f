// The prompt of lxhost.
#ifndef HOST_PROMPT_H_
#define HOST_PROMPT_H_

namespace velmohelp {

/// A Lua chunk that reads statements, runs each and prints its results, until
/// the input ends. Its argument is the function that reads a line. A script,
/// because Lua code has no destructor that a script error could skip.
inline constexpr char kPrompt[] = R"lua(
local read_line = ...
local io, load, print, select, tostring, traceback, xpcall =
  io, load, print, select, tostring, debug.traceback, xpcall

-- One statement, which may take several lines; an expression is returned.
local function compile(text)
  local chunk = load("return " .. text, "=stdin")
  local message
  while not chunk do
    chunk, message = load(text, "=stdin")
    if chunk or message:sub(-5) ~= "<eof>" then break end
    local more = read_line(">> ")
    if not more then io.write("\n") break end
    text = text .. more
  end
  return chunk, message
end

local function report(message)
  io.stderr:write("lxhost: ", tostring(message), "\n")
end

local function show(ok, ...)
  if not ok then return report(...) end
  if select("#", ...) > 0 then print(...) end
end

for text in function() return read_line("> ") end do
  local chunk, message = compile(text)
  if chunk then show(xpcall(chunk, traceback)) else report(message) end
end
io.write("\n")
)lua";

}  // namespace velmohelp

#endif  // HOST_PROMPT_H_
