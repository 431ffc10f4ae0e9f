// Opening a URL from inside a sandbox.
#ifndef PLATFORM_LINUX_HELPERS_BROWSER_PORTAL_H_
#define PLATFORM_LINUX_HELPERS_BROWSER_PORTAL_H_

#include <string>

namespace velmohelp {

/// This process is in a Flatpak sandbox, where the browser's program cannot be
/// started.
bool IsInSandbox();

/// Asks the desktop's OpenURI portal on the session bus to open a URL; true
/// when it took the request. The portal takes no file: URL.
bool OpenThroughPortal(const std::string& url);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_BROWSER_PORTAL_H_
