// URLs of resources, as libcurl parses them.
#ifndef PLATFORM_LINUX_HELPERS_RESOURCE_URL_H_
#define PLATFORM_LINUX_HELPERS_RESOURCE_URL_H_

#include <curl/urlapi.h>

#include <memory>
#include <string>

namespace velmohelp {

using UrlPtr = std::unique_ptr<CURLU, decltype(&curl_url_cleanup)>;

/// Null when the text is not an absolute URI (a missing scheme, a space, bytes
/// beyond ASCII), where libcurl would guess. Null also for a file: URL of
/// anything but a regular file: reading a pipe or a device can block, and a
/// directory reads as an empty file.
UrlPtr ParseResourceUrl(const std::string& text);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_RESOURCE_URL_H_
