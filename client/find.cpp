#include "client/find.h"

#include "resolve/page_id.h"

namespace velmohelp {

/// The viewer gets a URL between double quotes, see Quoted.
std::optional<std::string> UrlOf(const NotedStart& start) {
  if (start.kind == NotedStart::Kind::kBrowser) return start.url;
  const std::string request =
      start.arguments.empty() ? "" : start.arguments.back();
  if (request.size() < 2 || !request.starts_with('"') ||
      !request.ends_with('"')) {
    return std::nullopt;
  }
  const std::string url = request.substr(1, request.size() - 2);
  return IsUrl(url) ? std::optional(url) : std::nullopt;
}

}  // namespace velmohelp
