-- The stage of the demonstration: makes a request, prints the outcome, and
-- compares it with what the scene expects.
--
-- expected: result (a name), program, arguments (a list), first_line that it
-- shows; a field that does not matter is left out. most_lines: how many lines to
-- print.

local stage = { world = nil, requests = 0, failures = 0 }

local codes = require("velmohelp").DisplayPageReturnCode

local function say(...) print(string.format(...)) end

local function quote(text) return "'" .. text:gsub("'", "'\\''") .. "'" end

local function expect(what, expected, got)
  if expected == nil or expected == got then return end
  stage.failures = stage.failures + 1
  say("    NOT AS EXPECTED: %s should be '%s'", what, expected)
end

-- Waits for the program that a request started, but not forever. Returns its
-- name, its arguments, and the lines that it shows, without the empty ones.
local function read_screen()
  local pipe <close> =
    assert(io.popen("timeout 10 cat " .. quote(stage.world .. "/screen")))
  local program, count = (pipe:read("l") or ""):match("^(%w+) (%d+)$")
  local arguments, lines = {}, {}
  for i = 1, tonumber(count) or 0 do arguments[i] = pipe:read("l") or "" end
  for line in pipe:lines() do
    if line:find("%S") then lines[#lines + 1] = line end
  end
  return program or "nothing", arguments, lines
end

local function show_screen(expected)
  local program, arguments, lines = read_screen()
  for i, argument in ipairs(arguments) do
    say("    %-8s%s", i == 1 and program or "", argument)
  end
  for i = 1, math.min(#lines, expected.most_lines or 4) do
    say("    | %s", lines[i])
  end
  expect("the program", expected.program, program)
  expect("the arguments", expected.arguments
    and table.concat(expected.arguments, "\n"), table.concat(arguments, "\n"))
  expect("the first line", expected.first_line, lines[1])
end

local function say_call(name, ...)
  local texts = {}
  for i, argument in ipairs { ... } do texts[i] = '"' .. argument .. '"' end
  say("\n  %s(%s)", name, table.concat(texts, ", "))
  stage.requests = stage.requests + 1
end

local function say_result(value, name, expected)
  say("    %d %s", value, name)
  expect("the result", expected, name)
end

local function finish_request(value, name, expected)
  say_result(value, name, expected.result)
  if value == 0 then show_screen(expected) end
end

function stage.title(text) say("\n%s", text) end

function stage.initialise(product, locale, expected)
  say_call("LxHelpWorker.initializeClient", product, locale)
  local result = LxHelpWorker.initializeClient(product, locale)
  say_result(result.value, result.name, expected)
end

function stage.display(page_id, expected)
  say_call("LxHelp.displayClientPage", page_id)
  local result = LxHelp.displayClientPage(page_id)
  finish_request(result.value, result.name, expected)
end

local function name_of(value)
  for name, code in pairs(codes) do
    if code.value == value then return name end
  end
  return "unknown"
end

-- A C program makes the request, to show one that embeds the client. Its exit
-- status is the result code.
function stage.search(product, locale, text, expected)
  say_call("SearchHelp", product, locale, text)
  local search = { stage.world .. "/bin/search", product, locale, text }
  for i, word in ipairs(search) do search[i] = quote(word) end
  local _, _, value = os.execute(table.concat(search, " "))
  finish_request(value, name_of(value), expected)
end

return stage
