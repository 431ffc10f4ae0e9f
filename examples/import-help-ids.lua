-- lxhost import-help-ids.lua HOME PREFIX <hid2file.js >helpmap.txt
--
-- Turns a table of context-help ids, one 'id':'page#anchor', to a line, into a
-- help map. HOME is the page of the entry VX_HOME, without which the client
-- takes no map for complete; PREFIX stands before each page that is no URL.
-- Lines that are no such row are passed over, and so is what a help map cannot
-- hold: an empty field, a TAB or a line end.

local home, prefix = ...

local function is_url(text)
  return text:find("^https?://") or text:find("^file://")
end

-- The client looks a page id up as a file name without its last five bytes,
-- and ids that are URLs not at all.
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

-- Several modules have the same id; the client takes the first entry of a key.
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
