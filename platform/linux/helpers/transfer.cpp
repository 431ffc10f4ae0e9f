#include "platform/linux/helpers/transfer.h"

#include <curl/curl.h>
#include <sys/resource.h>

#include <csignal>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/linux/helpers/resource_url.h"
#include "platform/linux/helpers/text_check.h"
#include "platform/linux/helpers/time_limit.h"

namespace velmohelp {
namespace {

constexpr unsigned kTotalSeconds = 10;
/// A transfer that is slower than this for that long is given up.
constexpr long kLowSpeedBytesPerSecond = 1024;
constexpr long kLowSpeedSeconds = 5;
constexpr long kMaxRedirects = 20;
/// Of all responses of a transfer together: libcurl keeps headers in memory.
constexpr std::size_t kMaxHeaderBytes = 256U << 10U;
#ifndef VELMO_UNLIMITED_MEMORY
/// A transfer with TLS takes a fifth of it, thread stacks included.
constexpr rlim_t kMaxAddressSpace = 512U << 20U;
#endif

using Handle = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;

/// The time limit is not libcurl's: a name service or a network file system can
/// block a call of its own. Its signals would disturb that clock.
void LimitThisProcess() {
  velmo_limit_time(kTotalSeconds);
  std::signal(SIGPIPE, SIG_IGN);
#ifndef VELMO_UNLIMITED_MEMORY
  const rlimit limit = {kMaxAddressSpace, kMaxAddressSpace};
  setrlimit(RLIMIT_AS, &limit);
#endif
}

/// The charset of the last response; earlier ones were redirects.
std::string DeclaredCharset(CURL* transfer) {
  curl_header* type = nullptr;
  if (curl_easy_header(transfer, "Content-Type", 0, CURLH_HEADER, -1, &type) !=
      CURLHE_OK) {
    return "";
  }
  return CharsetOf(type->value);
}

/// A body as it arrives.
class Body {
 public:
  explicit Body(CURL* transfer) : transfer_(transfer) {}

  /// False when it cannot be text any more.
  bool Feed(std::string_view piece) {
    if (!check_) check_.emplace(DeclaredCharset(transfer_));
    check_->Feed(piece);
    return check_->MayBeText();
  }
  bool IsText() { return !check_ || check_->IsText(); }

 private:
  CURL* transfer_;
  std::optional<TextCheck> check_;
};

/// libcurl's write function. To return another count ends the transfer.
std::size_t OnBytes(char* bytes, std::size_t, std::size_t count, void* body) {
  return static_cast<Body*>(body)->Feed({bytes, count}) ? count : 0;
}

/// libcurl's header function, for each line of a header. To return another
/// count ends the transfer.
std::size_t OnHeader(char*, std::size_t, std::size_t count, void* left) {
  auto& bytes_left = *static_cast<std::size_t*>(left);
  if (count > bytes_left) return 0;
  bytes_left -= count;
  return count;
}

void SetLimits(CURL* transfer, std::size_t& header_bytes_left) {
  curl_easy_setopt(transfer, CURLOPT_MAXREDIRS, kMaxRedirects);
  curl_easy_setopt(transfer, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(transfer, CURLOPT_LOW_SPEED_LIMIT, kLowSpeedBytesPerSecond);
  curl_easy_setopt(transfer, CURLOPT_LOW_SPEED_TIME, kLowSpeedSeconds);
  curl_easy_setopt(transfer, CURLOPT_HEADERFUNCTION, &OnHeader);
  curl_easy_setopt(transfer, CURLOPT_HEADERDATA, &header_bytes_left);
}

void Configure(CURL* transfer, CURLU* url, Body& body) {
  curl_easy_setopt(transfer, CURLOPT_CURLU, url);
  curl_easy_setopt(transfer, CURLOPT_PROTOCOLS_STR, "http,https,file");
  // A server must not redirect to a file of this machine.
  curl_easy_setopt(transfer, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
  curl_easy_setopt(transfer, CURLOPT_FOLLOWLOCATION, 1L);
  curl_easy_setopt(transfer, CURLOPT_ACCEPT_ENCODING, "");
  curl_easy_setopt(transfer, CURLOPT_USERAGENT, "velmohelp");
  curl_easy_setopt(transfer, CURLOPT_WRITEFUNCTION, &OnBytes);
  curl_easy_setopt(transfer, CURLOPT_WRITEDATA, &body);
}

/// A file: URL has no status, which is 0 then.
long StatusOf(CURL* transfer) {
  long status = 0;
  curl_easy_getinfo(transfer, CURLINFO_RESPONSE_CODE, &status);
  return status;
}

/// What came of a transfer.
struct Outcome {
  bool is_url = false;
  CURLcode code = CURLE_OK;
  long status = 0;
  bool is_text = false;

  bool IsGoodStatus() const { return status == 0 || status / 100 == 2; }
  bool IsGood() const {
    return is_url && code == CURLE_OK && IsGoodStatus() && is_text;
  }
};

Outcome Load(const std::string& url) {
  LimitThisProcess();
  const UrlPtr parsed = ParseResourceUrl(url);
  const Handle transfer(curl_easy_init(), &curl_easy_cleanup);
  if (!parsed || !transfer) return {};
  Body body(transfer.get());
  std::size_t header_bytes_left = kMaxHeaderBytes;
  Configure(transfer.get(), parsed.get(), body);
  SetLimits(transfer.get(), header_bytes_left);
  const CURLcode code = curl_easy_perform(transfer.get());
  return {.is_url = true,
          .code = code,
          .status = StatusOf(transfer.get()),
          .is_text = body.IsText()};
}

}  // namespace

bool IsTextAt(const std::string& url) { return Load(url).IsGood(); }

std::string WhyNoTextAt(const std::string& url) {
  const Outcome outcome = Load(url);
  if (outcome.IsGood()) return "";
  if (!outcome.is_url) return "not a URL that can be loaded";
  if (!outcome.IsGoodStatus()) {
    return "HTTP status " + std::to_string(outcome.status);
  }
  const bool refused = outcome.code == CURLE_WRITE_ERROR || !outcome.is_text;
  return refused ? "not a text" : curl_easy_strerror(outcome.code);
}

}  // namespace velmohelp
