#include "platform/launch.h"

#include "util/uri.h"

namespace velmohelp {

int LaunchApplication(Machine& machine, const std::string& path,
                      const Arguments& arguments) {
  if (!machine.FileExists(path)) return kViewerNotLaunched;
  return machine.StartProgram(path, arguments) ? kLaunched : kViewerNotLaunched;
}

int LaunchPlatformBrowser(Machine& machine, const std::string& url) {
  const auto uri = UriOf(url);
  return uri && machine.OpenInBrowser(*uri) ? kLaunched : kBrowserNotLaunched;
}

}  // namespace velmohelp
