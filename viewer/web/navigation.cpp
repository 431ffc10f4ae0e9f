#include "viewer/web/navigation.h"

#include "viewer/web/address.h"

namespace viewer {

Verdict Judge(PageKind kind, const std::string& site,
              const Navigation& navigation) {
  const auto& uri = navigation.uri;
  if (uri == "about:blank" || uri == "about:srcdoc") return Verdict::kFollow;
  if (kind == PageKind::kLocal && ParseAddress(uri)) return Verdict::kFollow;
  if (!IsWebUrl(uri)) return Verdict::kRefuse;
  const bool stays = kind == PageKind::kOnline &&
                     (navigation.is_redirect || SiteOf(uri) == site);
  if (stays) return Verdict::kFollow;
  // Only a person may send the browser somewhere, never a script.
  return navigation.is_link_click ? Verdict::kBrowser : Verdict::kRefuse;
}

}  // namespace viewer
