// A configuration as its author sees it: elements with attributes.
#ifndef TOOLS_CHECK_MARKUP_H_
#define TOOLS_CHECK_MARKUP_H_

#include <cstddef>
#include <string_view>
#include <vector>

namespace velmohelp::tool {

/// name=value inside a tag. The views point into the text.
struct Attribute {
  std::string_view name;
  std::string_view value;
  char quote;
};

struct Markup {
  std::vector<Attribute> attributes;
  std::vector<std::string_view> comments;
};

/// Reads any text, well-formed or not: what is not closed ends with the text.
Markup ReadMarkup(std::string_view text);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_MARKUP_H_
