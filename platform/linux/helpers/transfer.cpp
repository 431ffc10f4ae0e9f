#include "platform/linux/helpers/transfer.h"

#include <curl/curl.h>

#include <memory>
#include <optional>
#include <string_view>

#include "platform/linux/helpers/resource_url.h"
#include "platform/linux/helpers/text_check.h"

namespace velmohelp {
namespace {

constexpr long kConnectSeconds = 15;
constexpr long kTotalSeconds = 60;
constexpr long kMaxRedirects = 20;

using Handle = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;

/// The response whose body comes; earlier ones were redirects.
std::string DeclaredCharset(CURL* transfer) {
  curl_header* type = nullptr;
  if (curl_easy_header(transfer, "Content-Type", 0, CURLH_HEADER, -1, &type) !=
      CURLHE_OK) {
    return "";
  }
  return CharsetOf(type->value);
}

/// A body on its way in.
class Body {
 public:
  explicit Body(CURL* transfer) : transfer_(transfer) {}

  /// False when no more of it is wanted.
  bool Take(std::string_view piece) {
    if (!check_) check_.emplace(DeclaredCharset(transfer_));
    check_->Take(piece);
    return check_->MayBeText();
  }
  bool IsText() { return !check_ || check_->IsText(); }

 private:
  CURL* transfer_;
  std::optional<TextCheck> check_;
};

/// libcurl's write function; another count than that of the bytes given ends
/// the transfer.
std::size_t OnBytes(char* bytes, std::size_t, std::size_t count, void* body) {
  return static_cast<Body*>(body)->Take({bytes, count}) ? count : 0;
}

void Configure(CURL* transfer, CURLU* url, Body& body) {
  curl_easy_setopt(transfer, CURLOPT_CURLU, url);
  curl_easy_setopt(transfer, CURLOPT_PROTOCOLS_STR, "http,https,file");
  // A server must not make a text of a file of this machine's.
  curl_easy_setopt(transfer, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
  curl_easy_setopt(transfer, CURLOPT_FOLLOWLOCATION, 1L);
  curl_easy_setopt(transfer, CURLOPT_MAXREDIRS, kMaxRedirects);
  curl_easy_setopt(transfer, CURLOPT_CONNECTTIMEOUT, kConnectSeconds);
  curl_easy_setopt(transfer, CURLOPT_TIMEOUT, kTotalSeconds);
  curl_easy_setopt(transfer, CURLOPT_ACCEPT_ENCODING, "");
  curl_easy_setopt(transfer, CURLOPT_USERAGENT, "velmohelp");
  curl_easy_setopt(transfer, CURLOPT_WRITEFUNCTION, &OnBytes);
  curl_easy_setopt(transfer, CURLOPT_WRITEDATA, &body);
}

/// A file has no status.
bool IsGoodStatus(CURL* transfer) {
  long status = 0;
  curl_easy_getinfo(transfer, CURLINFO_RESPONSE_CODE, &status);
  return status == 0 || status / 100 == 2;
}

}  // namespace

bool IsTextAt(const std::string& url) {
  const UrlPtr parsed = ParseResourceUrl(url);
  const Handle transfer(curl_easy_init(), &curl_easy_cleanup);
  if (!parsed || !transfer) return false;
  Body body(transfer.get());
  Configure(transfer.get(), parsed.get(), body);
  return curl_easy_perform(transfer.get()) == CURLE_OK &&
         IsGoodStatus(transfer.get()) && body.IsText();
}

}  // namespace velmohelp
