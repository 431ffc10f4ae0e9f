#include "viewer/content/preferences.h"

#include <glib.h>
#include <velmohelp/config.h>
#include <velmohelp/online.h>
#include <velmohelp/platform.h>
#include <velmohelp/state.h>

#include <cstdint>
#include <memory>

#include "util/str_cat.h"
#include "viewer/content/own_paths.h"
#include "viewer/gobject_ptr.h"

namespace viewer {
namespace {

constexpr char kGroup[] = "Preferences";
constexpr char kOnlineKey[] = "VelmoOnlineDefault";
constexpr char kOnlineFile[] = "/velmo/com.velmo.VelmoOnlineHelp.conf";

std::string ReadText(const std::string& path) {
  char* text = nullptr;
  g_file_get_contents(path.c_str(), &text, nullptr, nullptr);
  return Adopt(text);
}

// Whole or not at all: the client may read the file at any moment.
bool WriteText(const std::string& path, const std::string& text) {
  const TextPtr folder(g_path_get_dirname(path.c_str()));
  if (g_mkdir_with_parents(folder.get(), 0700) != 0) return false;
  return g_file_set_contents(path.c_str(), text.data(),
                             static_cast<gssize>(text.size()), nullptr);
}

std::string PreferenceFile() {
  AdoptOwnPaths();
  return ITEMInternal::GetKLHPreferenceFilePath();
}

std::string OnlinePreferenceFile() {
  constexpr std::int16_t kUserDomain = -32763;
  constexpr std::uint32_t kPreferencesFolder = 0x70726566;
  std::string folder;
  ITEMInternal::StdStringFindFolder(kUserDomain, kPreferencesFolder, 1, folder);
  return folder + kOnlineFile;
}

struct KeyFileFree {
  void operator()(GKeyFile* file) const { g_key_file_free(file); }
};

}  // namespace

bool UsesBrowser() {
  return GetKLHFilePreferenceForHelpApp(PreferenceFile()) == 2;
}

bool SetUsesBrowser(bool uses_browser) {
  const std::string path = PreferenceFile();
  return WriteText(path, WithValue(ReadText(path), "accessibleMode",
                                   uses_browser ? kTrue : kFalse));
}

bool UsesOnlineHelp() { return ITEMInternal::GetUserOnlinePref(); }

bool SetUsesOnlineHelp(bool uses_online_help) {
  const std::string path = OnlinePreferenceFile();
  return WriteText(path, WithPreference(ReadText(path), kOnlineKey,
                                        uses_online_help ? "1" : "0"));
}

bool IsOnlineHelpLocked() { return !ITEMInternal::GetAdminOnlinePref(); }

bool OpenInBrowser(const std::string& url) {
  return ITEMInternal::LaunchPlatformBrowser(url) == 0;
}

std::string WithValue(std::string text, std::string_view key,
                      std::string_view value) {
  constexpr auto kNone = std::string::npos;
  // As the client finds it: the first "=" after the first occurrence.
  const auto at = text.find(key);
  const auto equals = at == kNone ? kNone : text.find('=', at);
  const auto open = equals == kNone ? kNone : text.find('"', equals);
  const auto close = open == kNone ? kNone : text.find('"', open + 1);
  if (close != kNone) return text.replace(open + 1, close - open - 1, value);
  const std::string pair = velmohelp::StrCat({" ", key, "=\"", value, "\""});
  // Into the first element, after its name.
  for (auto i = text.find('<'); i != std::string::npos;
       i = text.find('<', i + 1)) {
    const auto name_end = text.find_first_of(" \t\r\n/>", i + 1);
    if (name_end == std::string::npos) break;
    if (g_ascii_isalpha(text[i + 1])) return text.insert(name_end, pair);
  }
  return velmohelp::StrCat({"<preferences", pair, "/>\n"});
}

std::string WithPreference(const std::string& text, const std::string& key,
                           const std::string& value) {
  const std::unique_ptr<GKeyFile, KeyFileFree> file(g_key_file_new());
  g_key_file_load_from_data(file.get(), text.data(), text.size(),
                            G_KEY_FILE_KEEP_COMMENTS, nullptr);
  g_key_file_set_value(file.get(), kGroup, key.c_str(), value.c_str());
  return Adopt(g_key_file_to_data(file.get(), nullptr, nullptr));
}

}  // namespace viewer
