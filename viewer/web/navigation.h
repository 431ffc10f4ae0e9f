// Where a link or a script may lead.
#ifndef VIEWER_WEB_NAVIGATION_H_
#define VIEWER_WEB_NAVIGATION_H_

#include <string>

namespace viewer {

enum class PageKind { kLocal, kOnline };

/// One navigation, as a page or the person starts it.
struct Navigation {
  std::string uri;
  bool is_link_click = false;
  bool is_redirect = false;
};

enum class Verdict {
  kFollow,   ///< In the view.
  kBrowser,  ///< In the default browser.
  kRefuse,   ///< Nowhere.
};

/// site: of the page that the view was asked to show. A local address still has
/// to be in a content folder.
Verdict Judge(PageKind kind, const std::string& site,
              const Navigation& navigation);

}  // namespace viewer

#endif  // VIEWER_WEB_NAVIGATION_H_
