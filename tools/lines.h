// Text files line by line.
#ifndef TOOLS_LINES_H_
#define TOOLS_LINES_H_

#include <cstddef>
#include <string_view>

namespace velmohelp::tool {

/// Calls visit(line, number) for each line of a text, without its LF or CR LF;
/// numbers count from 1. An unterminated last line counts, an empty one after
/// the last LF does not.
template <typename Visit>
void ForEachLine(std::string_view text, Visit visit) {
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    visit(line, number);
  }
}

}  // namespace velmohelp::tool

#endif  // TOOLS_LINES_H_
