// The browser that the desktop's application registry has for the user.
#ifndef PLATFORM_LINUX_HELPERS_DEFAULT_BROWSER_H_
#define PLATFORM_LINUX_HELPERS_DEFAULT_BROWSER_H_

#include <string>
#include <vector>

namespace velmohelp {

/// The command line that opens a URL in the default handler for https, or
/// where there is none for http, whatever the URL's own scheme: an absolute
/// path, and arguments. Empty when there is no such handler, or its program
/// is not to be found.
std::vector<std::string> DefaultBrowserCommand(const std::string& url);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_DEFAULT_BROWSER_H_
