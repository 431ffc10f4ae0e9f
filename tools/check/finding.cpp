#include "tools/check/finding.h"

#include <algorithm>

namespace velmohelp::tool {

std::size_t CountCharacters(std::string_view bytes) {
  return static_cast<std::size_t>(std::ranges::count_if(bytes, [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
  }));
}

Position PositionAt(std::string_view text, std::size_t offset) {
  offset = std::min(offset, text.size());
  Position at;
  std::size_t start = 0;
  for (std::size_t i = 0; i < offset; ++i) {
    const bool ends =
        text[i] == '\n' ||
        (text[i] == '\r' && !text.substr(i + 1).starts_with('\n'));
    if (!ends) continue;
    ++at.line;
    start = i + 1;
  }
  at.column = 1 + CountCharacters(text.substr(start, offset - start));
  return at;
}

}  // namespace velmohelp::tool
