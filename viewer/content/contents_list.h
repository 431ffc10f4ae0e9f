// The table of contents that a page holds: its nested lists of links.
#ifndef VIEWER_CONTENT_CONTENTS_LIST_H_
#define VIEWER_CONTENT_CONTENTS_LIST_H_

#include <string>
#include <string_view>
#include <vector>

namespace viewer {

struct ContentsEntry {
  std::string title;
  /// Relative to the page that holds the list, or to its base; "" for an entry
  /// that only holds others.
  std::string href;
  std::vector<ContentsEntry> children;
};

/// The entries of a page's lists; empty when no list of it has a link. base
/// gets the address that the page's base element gives, else "".
std::vector<ContentsEntry> ReadContents(std::string_view page,
                                        std::string& base);

/// The same from the lines that the script of a page's live document writes:
/// depth, tab, address, tab, title.
std::vector<ContentsEntry> ReadContentsLines(std::string_view lines);

}  // namespace viewer

#endif  // VIEWER_CONTENT_CONTENTS_LIST_H_
