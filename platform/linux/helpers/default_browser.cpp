#include "platform/linux/helpers/default_browser.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <algorithm>

#include "platform/linux/helpers/exec_line.h"
#include "platform/linux/helpers/gobject_ptr.h"
#include "platform/linux/helpers/terminal.h"

namespace velmohelp {
namespace {

using Words = std::vector<std::string>;

ObjectPtr<GAppInfo> DefaultBrowser() {
  for (const char* scheme : {"https", "http"}) {
    ObjectPtr<GAppInfo> handler(g_app_info_get_default_for_uri_scheme(scheme));
    if (handler && G_IS_DESKTOP_APP_INFO(handler.get())) return handler;
  }
  return nullptr;
}

std::string OrEmpty(const char* text) { return text == nullptr ? "" : text; }

FieldValues ValuesFor(GAppInfo* browser, const std::string& url) {
  GDesktopAppInfo* entry = G_DESKTOP_APP_INFO(browser);
  const TextPtr icon(g_desktop_app_info_get_string(entry, "Icon"));
  return {url, Text(icon), OrEmpty(g_app_info_get_name(browser)),
          OrEmpty(g_desktop_app_info_get_filename(entry))};
}

bool RunsInTerminal(GAppInfo* browser) {
  return g_desktop_app_info_get_boolean(G_DESKTOP_APP_INFO(browser),
                                        "Terminal") != 0;
}

/// Looks the program up in PATH: the library starts programs by absolute path
/// alone. Empty when it does not exist.
Words WithAbsoluteProgram(Words words) {
  const TextPtr path(g_find_program_in_path(words.front().c_str()));
  if (!path || g_path_is_absolute(path.get()) == 0) return {};
  words.front() = path.get();
  return words;
}

/// "key=value" and a line end; "" without a value. A line end in it would begin
/// another key.
std::string Line(const char* key, std::string value) {
  value.resize(std::min(value.find('\n'), value.size()));
  return value.empty() ? "" : std::string(key) + "=" + value + "\n";
}

}  // namespace

std::string DefaultBrowserDescription() {
  const ObjectPtr<GAppInfo> browser = DefaultBrowser();
  if (!browser) return "";
  GDesktopAppInfo* entry = G_DESKTOP_APP_INFO(browser.get());
  const TextPtr snap(
      g_desktop_app_info_get_string(entry, "X-SnapInstanceName"));
  const TextPtr flatpak(g_desktop_app_info_get_string(entry, "X-Flatpak"));
  return Line("entry", OrEmpty(g_desktop_app_info_get_filename(entry))) +
         Line("name", OrEmpty(g_app_info_get_name(browser.get()))) +
         Line("snap", Text(snap)) + Line("flatpak", Text(flatpak));
}

Words DefaultBrowserCommand(const std::string& url) {
  const ObjectPtr<GAppInfo> browser = DefaultBrowser();
  if (!browser) return {};
  const std::string line = OrEmpty(g_app_info_get_commandline(browser.get()));
  Words words = ExpandExecLine(line, ValuesFor(browser.get(), url));
  if (RunsInTerminal(browser.get())) words = InTerminal(std::move(words));
  return words.empty() ? words : WithAbsoluteProgram(std::move(words));
}

}  // namespace velmohelp
