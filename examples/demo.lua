-- lxhost demo.lua WORLD BASE_URL [ID...]: shows the pages of the ids. Without
-- ids it plays the scenes of the demonstration. Fails when a result is not as
-- expected.

local world, base_url = ...
local ids = { select(3, ...) }
local stage = dofile((arg[0]:gsub("[^/]*$", "stage.lua")))
stage.world = world

if #ids > 0 then
  stage.initialise("office", "en_US", "success")
  for _, id in ipairs(ids) do
    stage.display(id, { result = "success", most_lines = math.huge })
  end
  os.exit(stage.failures == 0)
end

local config = world .. "/home/.config"
local store = config .. "/reader.example.1/Local Store"
local viewer_preference = store .. "/klh-pref.xml"
local user_preference = config .. "/velmo/com.velmo.VelmoOnlineHelp.conf"
local admin_preference = world .. "/etc/velmo/com.velmo.VelmoOnlineHelp.conf"
local viewer = world .. "/Reader.app"

local function write(path, text)
  local file <close> = assert(io.open(path, "w"))
  assert(file:write(text))
end

-- The URL of a page in the downloaded help, and on the help server.
local function local_page(page, anchor)
  local path = store .. "/Help/help/en-US/text/" .. page
  local escaped = path:gsub("[^A-Za-z0-9/._~:?#@!$&'()*+,;=%[%]-]",
    function(byte) return string.format("%%%02X", byte:byte()) end)
  return "file://" .. escaped .. (anchor and "?nameAnchor=" .. anchor or "")
end

local function online_page(page, anchor)
  anchor = anchor and "#" .. anchor or ""
  return base_url .. "help/en-US/text/" .. page .. anchor
end

-- What a scene expects: the result, the program that was started, its arguments,
-- and the first line that it shows.
local function viewer_shows(first_line, verb, request)
  return { result = "success", program = "viewer", first_line = first_line,
    arguments = { verb, "office", "en_US", request } }
end

local function viewer_shows_page(first_line, url)
  return viewer_shows(first_line, "HELP", '"' .. url .. '"')
end

local function browser_shows_page(first_line, url)
  return { result = "success", program = "browser", first_line = first_line,
    arguments = { url } }
end

local preview_page = local_page("swriter/01/01120000.html", "bm_id2822117")
local preview_online = online_page("swriter/01/01120000.html", "bm_id2822117")
local shortcuts_online = online_page("shared/main0400.html")

stage.title("A request before the initialisation is refused.")
stage.display(".uno:PrintPreview", { result = "invalidInitialization" })

stage.title("The user reads offline: pages come from the downloaded help.")
stage.initialise("office", "en_US", "success")
stage.display(".uno:PrintPreview",
  viewer_shows_page("Print Preview", preview_page))
stage.display(".uno:WordCountDialog", viewer_shows_page("Word Count",
  local_page("swriter/01/06040000.html", "bm_id1483504")))
stage.display("modules/swriter/ui/mailmerge/printer", viewer_shows_page(
  "Printer", local_page("swriter/01/01150000.html", "bm_id3150497")))

stage.title("An unknown id leads to the home page.")
stage.display("no/such place", viewer_shows_page(
  "The LibreOffice Help", local_page("shared/05/new_help.html")))

stage.title("A URL goes to the viewer unchanged.")
stage.display(shortcuts_online,
  viewer_shows("Shortcut Keys", "URL", '"' .. shortcuts_online .. '"'))

stage.title("A search goes to the viewer, its text percent-encoded.")
stage.search("office", "en_US", "page number", viewer_shows(
  "defining -- starting page numbers (WRITER)", "SEARCH", "page%20number"))

stage.title("The viewer's accessible mode is on: the browser instead.")
write(viewer_preference, '<preferences accessibleMode="true"/>\n')
stage.display(".uno:PrintPreview",
  browser_shows_page("Print Preview", preview_page))
assert(os.remove(viewer_preference))

stage.title("The user reads online: pages come from the help server.")
assert(os.remove(user_preference))
stage.display(".uno:PrintPreview",
  viewer_shows_page("Print Preview", preview_online))

stage.title("The administrator has switched online help off: offline again.")
write(admin_preference, "[Preferences]\nVelmoOnlineDefault=0\n")
stage.display(".uno:PrintPreview",
  viewer_shows_page("Print Preview", preview_page))

stage.title("The viewer is not installed: the browser instead.")
assert(os.rename(viewer, viewer .. ".removed"))
stage.display(".uno:PrintPreview",
  browser_shows_page("Print Preview", preview_page))

print(string.format("\n%d requests, %s unexpected outcome.",
  stage.requests, stage.failures == 0 and "no" or stage.failures))
os.exit(stage.failures == 0)
