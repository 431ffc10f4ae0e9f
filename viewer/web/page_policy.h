// What a page is refused: other programs, downloads, windows, other sites.
#ifndef VIEWER_WEB_PAGE_POLICY_H_
#define VIEWER_WEB_PAGE_POLICY_H_

namespace viewer {

class PageView;

/// Connects the policy to a view.
void ConnectPolicy(PageView& page);

}  // namespace viewer

#endif  // VIEWER_WEB_PAGE_POLICY_H_
