// HTML pages, parsed as browsers parse them.
#ifndef TOOLS_CHECK_HTML_PAGE_H_
#define TOOLS_CHECK_HTML_PAGE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace velmohelp::tool {

/// Larger pages are not parsed: a tree takes a hundred times their size.
inline constexpr std::size_t kHtmlPageLimit = 8U << 20U;

struct HtmlPage {
  /// Without white space around it; "" when the page has none.
  std::string title;
  /// The values of "id", and of "name" of <a>.
  std::unordered_set<std::string> anchors;
};

/// nullopt for a page that is larger than kHtmlPageLimit, or nested so deeply
/// that parsing it would take minutes.
std::optional<HtmlPage> ParseHtmlPage(std::string_view html);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_HTML_PAGE_H_
