#include "config/viewer_preferences.h"

#include "config/key_file.h"
#include "config/key_scanner.h"

namespace velmohelp {
namespace {

/// A file that cannot be read has no settings.
bool IsSet(const std::string& path, const char* setting) {
  std::string text;
  ReadKeyFile(path, text);
  return ScanValue(text, setting) == "TRUE";
}

}  // namespace

bool IsViewerAllowed(const std::string& preference_file) {
  return !IsSet(preference_file, "accessibleMode");
}

bool IsNetworkHelpAllowed(const std::string& preference_file) {
  return !IsSet(preference_file, "localHelp");
}

}  // namespace velmohelp
