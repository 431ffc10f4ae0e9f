// Loading a resource.
#ifndef PLATFORM_LINUX_HELPERS_TRANSFER_H_
#define PLATFORM_LINUX_HELPERS_TRANSFER_H_

#include <string>

namespace velmohelp {

/// Loads the whole resource at an absolute URL (http, https, file); true when
/// the load succeeds and the body is text. The body is checked as it arrives,
/// and not kept.
///
/// Limits this process for good, once: it ends after 10 s, and has the address
/// space that a transfer takes. A hostile server breaks this program and no
/// other.
bool IsTextAt(const std::string& url);

/// The same, for a person: why there is no text, such as "HTTP status 404" or
/// libcurl's words; "" when there is one.
std::string WhyNoTextAt(const std::string& url);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_TRANSFER_H_
