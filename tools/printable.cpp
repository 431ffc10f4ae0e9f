#include "tools/printable.h"

#include "util/str_cat.h"
#include "util/utf8.h"

namespace velmohelp::tool {
namespace {

bool IsControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7F;
}

/// U+0080 to U+009F, which some terminals take for commands.
bool StartsWithC1(std::string_view text) {
  return text.size() > 1 && text[0] == '\xC2' &&
         static_cast<unsigned char>(text[1]) < 0xA0;
}

/// The size of the character that text begins with; 0 when it is not UTF-8.
std::size_t CharacterSize(std::string_view text) {
  for (std::size_t size = 1; size <= 4 && size <= text.size(); ++size) {
    if (IsUtf8(text.substr(0, size))) return size;
  }
  return 0;
}

std::string Escape(char c) {
  constexpr char kHexDigits[] = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(c);
  return {'\\', 'x', kHexDigits[byte / 16], kHexDigits[byte % 16]};
}

}  // namespace

std::string Printable(std::string_view text, std::size_t longest) {
  std::string line;
  while (!text.empty() && line.size() < longest) {
    const std::size_t size = CharacterSize(text);
    if (size == 0 || IsControl(text.front()) || StartsWithC1(text)) {
      line += Escape(text.front());
      text.remove_prefix(1);
    } else {
      line += text.substr(0, size);
      text.remove_prefix(size);
    }
  }
  return text.empty() ? line : line + "...";
}

std::string PrintableWhole(std::string_view text) {
  constexpr std::size_t kLongest = 8192;
  return Printable(text, kLongest);
}

std::string Quoted(std::string_view text) {
  return StrCat({"\"", Printable(text), "\""});
}

}  // namespace velmohelp::tool
