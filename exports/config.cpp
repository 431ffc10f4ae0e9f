#include <velmohelp/config.h>

#include "config/help_config.h"
#include "config/key_file.h"
#include "config/key_scanner.h"
#include "config/viewer_preferences.h"
#include "exports/guarded.h"
#include "exports/this_client.h"

using velmohelp::ConfigView;
using velmohelp::HelpConfigStatus;
using velmohelp::ThisMachine;
using velmohelp::ThisState;
using velmohelp::Uncancelled;
using velmohelp::WithState;

namespace {

constexpr int kViewerAllowed = 1;
constexpr int kViewerRefused = 2;

constexpr std::uint32_t ResultOf(HelpConfigStatus status) {
  return static_cast<std::uint32_t>(status);
}
static_assert(ResultOf(HelpConfigStatus::kAccepted) == kConfigAccepted);
static_assert(ResultOf(HelpConfigStatus::kUnreadable) == kConfigUnreadable);
static_assert(ResultOf(HelpConfigStatus::kInvalid) == kConfigInvalid);

}  // namespace

XMLParser::XMLParser() = default;

bool XMLParser::ReadFileToBuffer(std::string path) {
  return Uncancelled([&] { return velmohelp::ReadKeyFile(path, buffer_); });
}

std::string XMLParser::GetKey(std::string key) const {
  return Uncancelled([&] { return velmohelp::ScanValue(buffer_, key); });
}

std::string XMLParser::StringToUpper(std::string text) {
  return Uncancelled([&] { return velmohelp::ToUpper(text); });
}

void XMLParser::PopulatePathArray(std::string (*table)[2], int& count) const {
  return Uncancelled(
      [&] { velmohelp::ScanContentFolders(buffer_, table, count); });
}

std::string StringToUpper(std::string text) {
  return Uncancelled([&] { return velmohelp::ToUpper(text); });
}

std::uint32_t ReadHelpcfg(std::string path) {
  return WithState(kConfigUnreadable, [&] {
    return ResultOf(velmohelp::ReadHelpConfig(ConfigView(ThisState()), path));
  });
}

std::uint32_t UpdateHelpConfigInfo(std::string locale) {
  return WithState(kConfigUnreadable, [&] {
    return ResultOf(velmohelp::UpdateHelpConfig(
        ThisMachine(), ConfigView(ThisState()), locale));
  });
}

int GetKLHFilePreferenceForHelpApp(std::string path) {
  return Uncancelled([&] {
    return velmohelp::IsViewerAllowed(path) ? kViewerAllowed : kViewerRefused;
  });
}

bool GetPreferenceSettingsForNetwork(std::string path) {
  return Uncancelled([&] { return velmohelp::IsNetworkHelpAllowed(path); });
}

namespace ITEMInternal {

std::string GetHelpConfigPath(std::string product, std::string locale) {
  return WithState("", [&] {
    return velmohelp::InstalledConfigPath(ThisMachine(), product, locale);
  });
}

std::string GetDownloadedHelpConfigPath(std::string first, std::string second) {
  return WithState("", [&] {
    return velmohelp::DownloadedConfigPath(
        ThisMachine(), ThisState().downloaded_config, first, second);
  });
}

std::string GetHelpConfigName(std::string a, std::string b) {
  return WithState(
      "", [&] { return velmohelp::PreferredConfigName(ThisMachine(), a, b); });
}

}  // namespace ITEMInternal
