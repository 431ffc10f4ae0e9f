#include "config/help_config.h"

namespace velmohelp {
namespace {

/// A locale is five bytes: language, underscore, region.
constexpr std::size_t kLocaleLength = 5;

/// The ids of the viewer, and whether one is named at all: "NULL" names none.
void TakeViewerIds(const XMLParser& file, HelpConfigState state) {
  state.app_id = file.GetKey("appId");
  state.publisher_id = file.GetKey("pubId");
  state.app_id_is_null = StringToUpper(state.app_id) == "NULL";
  if (!state.app_id_is_null) return;
  state.app_id.clear();
  state.publisher_id.clear();
}

}  // namespace

std::uint32_t ReadHelpConfig(HelpConfigState state, const std::string& path) {
  XMLParser file;
  if (!file.ReadFileToBuffer(path)) return kConfigUnreadable;
  // What is assigned before a value is rejected stays: there is no roll-back.
  state.config_id = file.GetKey("id");
  if (state.config_id.size() < kLocaleLength) return kConfigInvalid;
  if (state.config_id != state.locale + "_" + state.product_id) {
    return kConfigInvalid;
  }
  state.locale = state.config_id.substr(0, kLocaleLength);
  state.base_url = file.GetKey("baseUrl");
  if (state.base_url.empty()) return kConfigInvalid;
  file.PopulatePathArray(state.help_paths, state.help_path_count);
  return kConfigAccepted;
}

std::uint32_t UpdateHelpConfig(Machine& machine, HelpConfigState state,
                               std::string locale) {
  state.help_path_count = kHelpPathCapacity;
  const std::string installed =
      GetHelpConfigPath(machine, state.product_id, locale);
  XMLParser file;
  if (!file.ReadFileToBuffer(installed)) return kConfigUnreadable;
  const std::string folder = file.GetKey("path");
  if (folder.empty()) return kConfigInvalid;
  TakeViewerIds(file, state);
  const std::string downloaded = GetDownloadedHelpConfigPath(
      machine, state.downloaded_suffix, folder, state.product_id);
  if (!machine.FileExists(downloaded)) return ReadHelpConfig(state, installed);
  const std::uint32_t result = ReadHelpConfig(state, downloaded);
  if (result == kConfigAccepted) return result;
  return ReadHelpConfig(state,
                        GetHelpConfigPath(machine, state.product_id, locale));
}

}  // namespace velmohelp
