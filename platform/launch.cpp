#include "platform/launch.h"

#include "platform/files.h"
#include "util/uri.h"

namespace velmohelp {

LaunchResult LaunchApplication(Machine& machine, const std::string& path,
                               const Arguments& arguments) {
  const bool is_running =
      FileExists(machine, path) && machine.StartProgram(path, arguments);
  return is_running ? LaunchResult::kLaunched
                    : LaunchResult::kViewerNotLaunched;
}

LaunchResult LaunchPlatformBrowser(Machine& machine, const std::string& url) {
  const auto uri = UriOf(url);
  const bool is_open = uri && machine.OpenInBrowser(*uri);
  return is_open ? LaunchResult::kLaunched : LaunchResult::kBrowserNotLaunched;
}

}  // namespace velmohelp
