-- lxhost import-help-ids.lua HOME PREFIX <hid2file.js >helpmap.txt
--
-- Turns a table of context-help ids, one 'id':'page#anchor', per line, into a
-- help map. HOME is the page of the entry VX_HOME, without which the client
-- rejects a map. PREFIX is put before each page that is not a URL. Skips all other
-- lines, and rows that a help map cannot represent: those with an empty field, a
-- tab or a line end.

local home, prefix = ...

local function is_url(text)
  return text:find("^https?://") or text:find("^file://")
end

-- The key that the client looks up: a file name without its last five bytes. It
-- looks up no id that is a URL.
local function lookup_key(id)
  if is_url(id) then return "" end
  if not id:find("%.html?$") then
    id = id:gsub("[^A-Za-z0-9_.-]", "_") .. ".html"
  end
  return #id < 5 and id or id:sub(1, -6)
end

local function is_field(text)
  return text ~= "" and not text:find("[\t\r\n]")
end

local written = {}

-- Several modules have the same id; the client uses the first entry of a key.
local function write_entry(key, page)
  if written[key] or not (is_field(key) and is_field(page)) then return end
  written[key] = true
  io.write(key, "\t", page, "\n")
end

write_entry("VX_HOME", prefix .. home)
for line in io.lines() do
  local id, page = line:match("^%s*'([^'\\]*)'%s*:%s*'([^'\\]+)'%s*,?%s*$")
  if id then
    write_entry(lookup_key(id), is_url(page) and page or prefix .. page)
  end
end
