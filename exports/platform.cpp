#include <velmohelp/platform.h>

#include "client/state_views.h"
#include "exports/this_machine.h"
#include "platform/folders.h"
#include "platform/help_tool.h"
#include "platform/launch.h"

using velmohelp::ThisMachine;

namespace ITEMInternal {

bool FileExists(std::string path) { return ThisMachine().FileExists(path); }

bool IsZAMRuntimePresent() {
  return velmohelp::IsZamRuntimePresent(ThisMachine());
}

std::string GetHelpApplicationPath() {
  return velmohelp::GetHelpApplicationPath(ThisMachine(),
                                           velmohelp::ViewerView());
}

int LaunchApplication(const std::string& path, const std::string& mode,
                      const std::string& product, const std::string& locale,
                      const std::string& request) {
  return velmohelp::LaunchApplication(ThisMachine(), path,
                                      {mode, product, locale, request});
}

int LaunchPlatformBrowser(const std::string& url) {
  return velmohelp::LaunchPlatformBrowser(ThisMachine(), url);
}

bool StdStringFindFolder(std::int16_t domain, std::uint32_t type,
                         std::uint8_t create, std::string& out) {
  return velmohelp::StdStringFindFolder(ThisMachine(), domain, type,
                                        create != 0, out);
}

std::string GetKLHPreferenceFilePath() {
  return velmohelp::BelowPreferences(ThisMachine(), kKLHPreferenceFile);
}

std::string GetDownloadedContentPath() {
  return velmohelp::BelowPreferences(ThisMachine(), kDownloadedOfflineContent);
}

std::int16_t GetFSRefFromPath(std::string path, FileReference& out) {
  return velmohelp::GetFsRefFromPath(ThisMachine(), path, out);
}

}  // namespace ITEMInternal
