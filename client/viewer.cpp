#include "client/viewer.h"

#include "config/viewer_preferences.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/help_tool.h"
#include "util/c_string.h"
#include "util/str_cat.h"

namespace velmohelp {

void SetDefaultViewer(ClientState& state) {
  state.app_id = state.default_app_id;
  state.publisher_id = state.default_publisher_id;
}

void SetDefaultViewerIfNoneIsNamed(ClientState& state) {
  if (state.app_id.empty() && state.publisher_id.empty()) {
    SetDefaultViewer(state);
  }
}

void RefreshHelpAppPath(const Client& client) {
  client.state.help_app_path =
      HelpApplicationPath(client.machine, ViewerView(client.state));
}

bool IsViewerInstalled(const Client& client) {
  return FileExists(client.machine, client.state.help_app_path) &&
         IsZamRuntimePresent(client.machine);
}

std::string PreferenceFile(const Client& client) {
  return BelowPreferences(client.machine, client.state.preference_file);
}

bool IsViewerUsable(const Client& client) {
  return !client.state.app_id_is_null &&
         IsViewerUsable(client, PreferenceFile(client));
}

bool IsViewerUsable(const Client& client, const std::string& preference_file) {
  if (client.state.app_id_is_null) return false;
  if (FileExists(client.machine, preference_file) &&
      !IsViewerAllowed(preference_file, client.observer)) {
    return false;
  }
  return IsViewerInstalled(client);
}

LaunchResult LaunchViewer(const Client& client, const char* verb,
                          const std::string& request) {
  const ClientState& state = client.state;
  return LaunchApplication(client.machine, state.help_app_path,
                           {verb, state.product_id, state.locale, request});
}

std::string Quoted(std::string_view url) {
  return StrCat({"\"", UpToZero(url), "\""});
}

}  // namespace velmohelp
