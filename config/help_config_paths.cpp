#include "config/help_config.h"
#include "platform/folders.h"
#include "platform/preference.h"
#include "util/text_buffer.h"

namespace velmohelp {
namespace {

constexpr char kFallbackDirectory[] =
    "/Library/Application Support/Velmo/HelpCfg";
constexpr char kExtension[] = ".helpcfg";

std::string ResourcesDirectory(Machine& machine) {
  const auto directory = machine.ResourcesDirectory();
  return directory && FitsTextBuffer(*directory) ? *directory
                                                 : kFallbackDirectory;
}

}  // namespace

std::string GetHelpConfigPath(Machine& machine, const std::string& product,
                              const std::string& locale) {
  return ResourcesDirectory(machine) + "/help/" + locale + "/" + product +
         kExtension;
}

std::string GetDownloadedHelpConfigPath(Machine& machine,
                                        const std::string& suffix,
                                        const std::string& first,
                                        const std::string& second) {
  return BelowPreferences(machine, suffix) + "/" + first + "/" + second +
         kExtension;
}

std::string GetHelpConfigName(Machine& machine, const std::string& a,
                              const std::string& b) {
  if (a.empty() || b.empty()) return "";
  return PreferenceText(machine, "com.velmo." + a + "." + b, "HelpcfgName",
                        PreferenceScope::kAnyUserCurrentHost);
}

}  // namespace velmohelp
