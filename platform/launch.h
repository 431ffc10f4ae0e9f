// Starting the viewer and the browser.
#ifndef PLATFORM_LAUNCH_H_
#define PLATFORM_LAUNCH_H_

#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// What came of a launch. Each request has its own number for each of these.
enum class LaunchResult { kLaunched, kViewerNotLaunched, kBrowserNotLaunched };

/// See ITEMInternal::LaunchApplication.
LaunchResult LaunchApplication(Machine& machine, const std::string& path,
                               const Arguments& arguments);

/// See ITEMInternal::LaunchPlatformBrowser.
LaunchResult LaunchPlatformBrowser(Machine& machine, const std::string& url);

}  // namespace velmohelp

#endif  // PLATFORM_LAUNCH_H_
