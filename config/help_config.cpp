#include "config/help_config.h"

#include "config/key_file.h"
#include "platform/files.h"
#include "util/str_cat.h"

namespace velmohelp {
namespace {

void AssignViewerIds(std::string_view text, const HelpConfigState& state) {
  state.app_id = ScanKey(text, "appId", state.observer);
  state.publisher_id = ScanKey(text, "pubId", state.observer);
  state.app_id_is_null = ToUpper(state.app_id) == "NULL";
  if (!state.app_id_is_null) return;
  state.app_id.clear();
  state.publisher_id.clear();
}

}  // namespace

HelpConfigStatus ReadHelpConfig(const HelpConfigState& state,
                                const std::string& path) {
  std::string text;
  if (!ReadKeyFile(path, text, state.observer)) {
    return HelpConfigStatus::kUnreadable;
  }
  state.config_id = ScanKey(text, "id", state.observer);
  if (state.config_id.size() < kLocaleLength) return HelpConfigStatus::kInvalid;
  if (state.config_id != StrCat({state.locale, "_", state.product_id})) {
    return HelpConfigStatus::kInvalid;
  }
  state.locale = state.config_id.substr(0, kLocaleLength);
  state.base_url = ScanKey(text, "baseUrl", state.observer);
  if (state.base_url.empty()) return HelpConfigStatus::kInvalid;
  ScanContentFolders(text, state.help_paths, state.help_path_count);
  return HelpConfigStatus::kAccepted;
}

HelpConfigStatus UpdateHelpConfig(Machine& machine,
                                  const HelpConfigState& state,
                                  const std::string& locale) {
  state.help_path_count = kHelpPathCapacity;
  // Each read may replace the state's locale, and the argument with it.
  // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const std::string asked_locale = locale;
  const std::string installed =
      InstalledConfigPath(machine, state.product_id, asked_locale);
  std::string text;
  if (!ReadKeyFile(installed, text, state.observer)) {
    return HelpConfigStatus::kUnreadable;
  }
  const std::string_view folder = ScanKey(text, "path", state.observer);
  if (folder.empty()) return HelpConfigStatus::kInvalid;
  AssignViewerIds(text, state);
  const std::string downloaded = DownloadedConfigPath(
      machine, state.downloaded_suffix, folder, state.product_id);
  if (!FileExists(machine, downloaded)) return ReadHelpConfig(state, installed);
  const HelpConfigStatus status = ReadHelpConfig(state, downloaded);
  if (status == HelpConfigStatus::kAccepted) return status;
  // The machine is asked for the path again: the order of questions is fixed.
  return ReadHelpConfig(
      state, InstalledConfigPath(machine, state.product_id, asked_locale));
}

}  // namespace velmohelp
