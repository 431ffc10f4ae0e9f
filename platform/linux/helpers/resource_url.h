// URLs of resources, as libcurl holds them.
#ifndef PLATFORM_LINUX_HELPERS_RESOURCE_URL_H_
#define PLATFORM_LINUX_HELPERS_RESOURCE_URL_H_

#include <curl/urlapi.h>

#include <memory>
#include <string>

namespace velmohelp {

using UrlPtr = std::unique_ptr<CURLU, decltype(&curl_url_cleanup)>;

/// Null when the text is no absolute URI, where the transfer library would
/// guess: a missing scheme, a blank, bytes beyond ASCII. Null also for a file
/// URL at which no regular file lies: a pipe or a device could keep the person
/// at the keyboard waiting, and a directory reads as an empty file.
UrlPtr ParseResourceUrl(const std::string& text);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_RESOURCE_URL_H_
