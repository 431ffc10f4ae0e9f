// What a page says: its title, and the words that a search finds.
#ifndef VIEWER_CONTENT_PAGE_TEXT_H_
#define VIEWER_CONTENT_PAGE_TEXT_H_

#include <string>
#include <string_view>

namespace viewer {

struct PageText {
  /// The title element, else the first heading; "" when the page has neither.
  std::string title;
  /// Runs of white space are one space. Without scripts, styles and what
  /// surrounds the text on every page: headers, footers, navigation.
  std::string body;
};

PageText ReadPageText(std::string_view page);

}  // namespace viewer

#endif  // VIEWER_CONTENT_PAGE_TEXT_H_
