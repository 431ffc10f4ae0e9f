// The prompt of the host program.
#ifndef HOST_PROMPT_H_
#define HOST_PROMPT_H_

namespace velmohelp {

/// A Lua chunk that reads statements from standard input, runs each and prints
/// its results, until the input ends. A script, because what reads lines and
/// runs chunks in Lua has no destructor that a script error could skip.
inline constexpr char kPrompt[] = R"lua(
local io, load, pack, print, traceback, unpack, xpcall =
  io, load, table.pack, print, debug.traceback, table.unpack, xpcall

local function ask(prompt)
  io.write(prompt)
  io.flush()
  return io.read("L")
end

-- One statement, which may take several lines; an expression is returned.
local function compile(text)
  local chunk = load("return " .. text, "=stdin")
  local message
  while not chunk do
    chunk, message = load(text, "=stdin")
    if chunk or message:sub(-5) ~= "<eof>" then break end
    local more = ask(">> ")
    if not more then break end
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

for text in function() return ask("> ") end do
  local chunk, message = compile(text)
  if chunk then show(xpcall(chunk, traceback)) else report(message) end
end
io.write("\n")
)lua";

}  // namespace velmohelp

#endif  // HOST_PROMPT_H_
