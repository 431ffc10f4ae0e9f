#include "resolve/page_id.h"

#include <array>

#include "util/ascii.h"

namespace velmohelp {
namespace {

constexpr std::string_view kPageSuffix = ".html";

/// The replacement of each byte: itself when file systems and URLs alike take
/// it unescaped, else "_".
constexpr std::array<char, 256> kFileNameBytes = [] {
  std::array<char, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) {
    const char byte = static_cast<char>(i);
    const bool allowed =
        IsAsciiAlnum(byte) || byte == '_' || byte == '-' || byte == '.';
    table[i] = allowed ? byte : '_';
  }
  return table;
}();

}  // namespace

bool IsUrl(std::string_view text) {
  return text.starts_with("http://") || text.starts_with("https://") ||
         text.starts_with("file://");
}

bool IsHtmlPage(std::string_view name) {
  return name.ends_with(kPageSuffix) || name.ends_with(".htm");
}

void NormalizePageId(std::string& id) {
  if (IsUrl(id) || IsHtmlPage(id)) return;
  for (char& byte : id) byte = kFileNameBytes[static_cast<unsigned char>(byte)];
  id += kPageSuffix;
}

std::string_view HelpMapKey(std::string_view page_id) {
  if (page_id.size() >= kPageSuffix.size()) {
    page_id.remove_suffix(kPageSuffix.size());
  }
  return page_id;
}

}  // namespace velmohelp
