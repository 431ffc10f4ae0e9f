#include <optional>

#include "online/network_status.h"
#include "util/platform_string.h"
#include "util/uri.h"

namespace velmohelp {
namespace {

/// Host names pass through a buffer of this size, with a terminating NUL.
constexpr std::size_t kHostBufferSize = 255;

/// A name that does not fit is no name: the probe is made all the same, and
/// fails.
std::optional<std::string> ProbedHost(const std::string& url) {
  auto host = HostOfUri(url);
  if (host && host->size() >= kHostBufferSize) host.reset();
  return host;
}

}  // namespace

bool OnlineStatus(Machine& machine, const std::string& url) {
  const auto text = MakePlatformString(url, ITEMInternal::kTextEncodingUtf8);
  if (!text || !IsUri(text->utf8())) return false;
  const auto answer = machine.HostReachability(ProbedHost(text->utf8()));
  return answer && !answer->connection_required && answer->reachable;
}

}  // namespace velmohelp
