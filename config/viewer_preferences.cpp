#include <velmohelp/config.h>
#include <velmohelp/state.h>

const char* kTrue = "TRUE";
const char* kFalse = "FALSE";

namespace {

constexpr int kViewerAllowed = 1;
constexpr int kViewerRefused = 2;

/// A file that cannot be read says nothing, so every setting of it is off.
bool IsTrueIn(const std::string& path, const char* key) {
  XMLParser parser;
  parser.ReadFileToBuffer(path);
  return parser.GetKey(key) == kTrue;
}

}  // namespace

int GetKLHFilePreferenceForHelpApp(std::string path) {
  return IsTrueIn(path, "accessibleMode") ? kViewerRefused : kViewerAllowed;
}

bool GetPreferenceSettingsForNetwork(std::string path) {
  return !IsTrueIn(path, "localHelp");
}
