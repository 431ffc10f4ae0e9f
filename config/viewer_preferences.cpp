#include "config/viewer_preferences.h"

#include "config/key_file.h"
#include "config/key_scanner.h"

namespace velmohelp {
namespace {

/// A file that cannot be read has no settings.
bool IsSet(const std::string& path, const char* setting,
           RequestObserver* observer) {
  std::string text;
  ReadKeyFile(path, text, observer);
  return ScanValue(text, setting, observer) == "TRUE";
}

}  // namespace

bool IsViewerAllowed(const std::string& preference_file,
                     RequestObserver* observer) {
  return !IsSet(preference_file, "accessibleMode", observer);
}

bool IsNetworkHelpAllowed(const std::string& preference_file) {
  return !IsSet(preference_file, "localHelp", nullptr);
}

}  // namespace velmohelp
