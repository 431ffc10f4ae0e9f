#include "platform/linux/helpers/resource_url.h"

#include <curl/curl.h>

#include <algorithm>
#include <string_view>

#include "platform/linux/files.h"

namespace velmohelp {
namespace {

/// A part of a URL, unescaped; "" when it has none.
std::string PartOf(const UrlPtr& url, CURLUPart part) {
  char* text = nullptr;
  if (curl_url_get(url.get(), part, &text, CURLU_URLDECODE) != CURLUE_OK) {
    return "";
  }
  const std::unique_ptr<char, decltype(&curl_free)> owner(text, &curl_free);
  return text;
}

bool IsReadable(const UrlPtr& url) {
  return PartOf(url, CURLUPART_SCHEME) != "file" ||
         OpenRegularFile(PartOf(url, CURLUPART_PATH));
}

}  // namespace

UrlPtr ParseResourceUrl(const std::string& text) {
  const bool plain = std::all_of(text.begin(), text.end(),
                                 [](char c) { return c > ' ' && c < '\x7F'; });
  UrlPtr url(plain ? curl_url() : nullptr, &curl_url_cleanup);
  if (!url ||
      curl_url_set(url.get(), CURLUPART_URL, text.c_str(), 0) != CURLUE_OK ||
      !IsReadable(url)) {
    return {nullptr, &curl_url_cleanup};
  }
  return url;
}

}  // namespace velmohelp
