// Loading a resource.
#ifndef PLATFORM_LINUX_HELPERS_TRANSFER_H_
#define PLATFORM_LINUX_HELPERS_TRANSFER_H_

#include <string>

namespace velmohelp {

/// Loads the whole resource at an absolute URL (http, https, file) and tells
/// whether that ended well and its body is text. The body is checked as it
/// comes and not kept.
bool IsTextAt(const std::string& url);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_TRANSFER_H_
