// Walks through the text of an HTML page, tag by tag. It never fails: what is
// not a tag is text, and a page that ends in the middle of one just ends.
#ifndef VIEWER_CONTENT_HTML_SCANNER_H_
#define VIEWER_CONTENT_HTML_SCANNER_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace viewer {

/// One step through a page.
struct HtmlToken {
  enum Kind { kText, kOpen, kClose, kEnd };
  Kind kind = kEnd;
  /// kOpen and kClose: the element's name, in lower case.
  std::string name;
  /// kText: the characters as written. kOpen: the attributes as written.
  std::string_view raw;
};

class HtmlScanner {
 public:
  /// page must live as long as the scanner.
  explicit HtmlScanner(std::string_view page) : page_(page) {}

  /// The next step; kEnd at the end of the page. Comments, declarations and
  /// the contents of script and style elements are passed over.
  HtmlToken Next();

 private:
  HtmlToken Text();
  HtmlToken Tag();
  bool SkipMarkup();
  void SkipRawText(const std::string& name);
  std::size_t TagEnd(std::size_t from) const;

  std::string_view page_;
  std::size_t at_ = 0;
};

/// The text with character references replaced ("&amp;", "&#228;", "&#xe4;").
/// References that it does not know stay as they are.
std::string DecodeHtmlText(std::string_view raw);

/// The decoded value of an attribute in the raw attributes of a tag; "" when it
/// is missing.
std::string HtmlAttribute(std::string_view raw, std::string_view name);

}  // namespace viewer

#endif  // VIEWER_CONTENT_HTML_SCANNER_H_
