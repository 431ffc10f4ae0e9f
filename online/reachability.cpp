#include <optional>

#include "online/network_status.h"
#include "util/uri.h"
#include "util/utf8.h"

namespace velmohelp {
namespace {

/// The buffer that host names pass through, with a terminating NUL.
constexpr std::size_t kHostBufferSize = 255;

/// host is valid UTF-8, has no zero byte and fits the buffer.
bool IsName(const std::string& host) {
  return host.size() < kHostBufferSize && IsUtf8(host) &&
         host.find('\0') == std::string::npos;
}

/// The host to ask about. The probe is made, and fails, even without one.
std::optional<std::string> ProbedHost(const std::string& url) {
  auto host = HostOfUri(url);
  if (host && !IsName(*host)) host.reset();
  return host;
}

}  // namespace

bool IsReachable(Machine& machine, const std::string& url) {
  const auto uri = UriOf(url);
  if (!uri) return false;
  const auto answer = machine.HostReachability(ProbedHost(*uri));
  return answer && !answer->connection_required && answer->reachable;
}

}  // namespace velmohelp
