#include "platform/launch.h"

#include "util/uri.h"

namespace velmohelp {

int LaunchApplication(Machine& machine, const std::string& path,
                      const Arguments& arguments) {
  if (!machine.FileExists(path)) return kViewerNotLaunched;
  return machine.StartProgram(path, arguments) ? kLaunched : kViewerNotLaunched;
}

int LaunchPlatformBrowser(Machine& machine, const std::string& url) {
  if (!IsUri(url)) return kBrowserNotLaunched;
  return machine.OpenInBrowser(url) ? kLaunched : kBrowserNotLaunched;
}

}  // namespace velmohelp
