#include "platform/linux/preference_store.h"

#include "platform/linux/folders.h"
#include "platform/linux/open_file.h"
#include "platform/linux/preference_file.h"
#include "platform/locations.h"
#include "util/input_file.h"

namespace velmohelp {
namespace {

std::optional<std::string> StoreFolder(PreferenceScope scope) {
  if (scope == PreferenceScope::kAnyUserCurrentHost) return kSysconfDir;
  const auto folder = PreferencesFolderPath();
  if (!folder) return std::nullopt;
  return *folder + "/velmo";
}

}  // namespace

std::optional<std::string> ReadPreference(const std::string& domain,
                                          const std::string& key,
                                          PreferenceScope scope) {
  const auto folder = StoreFolder(scope);
  return folder ? ReadPreferenceIn(*folder, domain, key) : std::nullopt;
}

std::optional<std::string> ReadPreferenceIn(const std::string& folder,
                                            const std::string& domain,
                                            const std::string& key) {
  const auto text = ReadRegularFile(folder + "/" + PreferenceFileName(domain),
                                    kSettingsFileLimit);
  return text ? PreferenceInText(*text, key) : std::nullopt;
}

}  // namespace velmohelp
