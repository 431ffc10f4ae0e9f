// Starting the viewer and the browser.
#ifndef PLATFORM_LAUNCH_H_
#define PLATFORM_LAUNCH_H_

#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// Answers of the launches. Their failures differ, and callers rely on it.
inline constexpr int kLaunched = 0;
inline constexpr int kViewerNotLaunched = 1;
inline constexpr int kBrowserNotLaunched = 2;

/// See ITEMInternal::LaunchApplication.
int LaunchApplication(Machine& machine, const std::string& path,
                      const Arguments& arguments);

/// See ITEMInternal::LaunchPlatformBrowser.
int LaunchPlatformBrowser(Machine& machine, const std::string& url);

}  // namespace velmohelp

#endif  // PLATFORM_LAUNCH_H_
