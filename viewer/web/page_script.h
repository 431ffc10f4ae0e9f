// The viewer's own script in every local page. It runs in a world of its own:
// the page can neither see nor change it.
#ifndef VIEWER_WEB_PAGE_SCRIPT_H_
#define VIEWER_WEB_PAGE_SCRIPT_H_

namespace viewer {

inline constexpr char kScriptWorld[] = "velmohelp";
inline constexpr char kScriptHandler[] = "viewer";

/// Scrolls to the anchor, reports what was painted, and offers the functions
/// that the viewer calls: velmoHighlight(words) and velmoContents().
extern const char kPageScript[];

/// The look of highlighted hits, and dark pages where the page has no colours
/// of its own.
extern const char kPageStyle[];

}  // namespace viewer

#endif  // VIEWER_WEB_PAGE_SCRIPT_H_
