// The user's default browser in the desktop's application registry.
#ifndef PLATFORM_LINUX_HELPERS_DEFAULT_BROWSER_H_
#define PLATFORM_LINUX_HELPERS_DEFAULT_BROWSER_H_

#include <string>
#include <vector>

namespace velmohelp {

/// The argument vector that opens a URL in the default handler for https, else
/// for http, whatever the URL's own scheme. The program is an absolute path.
/// Empty when there is no such handler, its Exec line is refused, or its
/// program does not exist.
std::vector<std::string> DefaultBrowserCommand(const std::string& url);

/// What its desktop entry says of the default browser, in the form of
/// VELMO_BROWSER_DESCRIBE; "" when there is none.
std::string DefaultBrowserDescription();

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_DEFAULT_BROWSER_H_
