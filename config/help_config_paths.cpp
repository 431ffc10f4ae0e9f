#include "config/help_config.h"
#include "platform/folders.h"
#include "platform/preference.h"
#include "util/str_cat.h"
#include "util/text_buffer.h"

namespace velmohelp {
namespace {

constexpr std::string_view kExtension = ".helpcfg";

std::string ResourcesDirectory(Machine& machine) {
  auto directory = machine.ResourcesDirectory();
  if (directory && FitsTextBuffer(*directory)) return std::move(*directory);
  return "/Library/Application Support/Velmo/HelpCfg";
}

}  // namespace

std::string InstalledConfigFolder(Machine& machine) {
  return StrCat({ResourcesDirectory(machine), "/help"});
}

std::string InstalledConfigPath(Machine& machine, std::string_view product,
                                std::string_view locale) {
  return StrCat(
      {InstalledConfigFolder(machine), "/", locale, "/", product, kExtension});
}

std::string DownloadedConfigPath(Machine& machine, const std::string& suffix,
                                 std::string_view folder,
                                 std::string_view product) {
  return StrCat({BelowPreferences(machine, suffix), "/", folder, "/", product,
                 kExtension});
}

std::string PreferredConfigName(Machine& machine, std::string_view a,
                                std::string_view b) {
  if (a.empty() || b.empty()) return "";
  return PreferenceText(machine, StrCat({"com.velmo.", a, ".", b}),
                        "HelpcfgName", PreferenceScope::kAnyUserCurrentHost);
}

}  // namespace velmohelp
