#include <optional>

#include "online/network_status.h"
#include "util/uri.h"
#include "util/utf8.h"

namespace velmohelp {
namespace {

/// Host names pass through a buffer of this size, with a terminating NUL.
constexpr std::size_t kHostBufferSize = 255;

/// A C string of UTF-8 that fits into the buffer.
bool IsName(const std::string& host) {
  return host.size() < kHostBufferSize && IsUtf8(host) &&
         host.find('\0') == std::string::npos;
}

/// A host that is no name is left out: the probe is made all the same, and
/// fails.
std::optional<std::string> ProbedHost(const std::string& url) {
  auto host = HostOfUri(url);
  if (host && !IsName(*host)) host.reset();
  return host;
}

}  // namespace

bool OnlineStatus(Machine& machine, const std::string& url) {
  const auto uri = UriOf(url);
  if (!uri) return false;
  const auto answer = machine.HostReachability(ProbedHost(*uri));
  return answer && !answer->connection_required && answer->reachable;
}

}  // namespace velmohelp
