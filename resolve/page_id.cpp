#include <velmohelp/resolve.h>

#include <array>
#include <string_view>

#include "util/ascii.h"

namespace {

constexpr std::string_view kPageSuffix = ".html";

/// What stands in a page's file name for each byte: itself where file systems
/// and URLs alike take it as it is.
constexpr std::array<char, 256> kFileNameBytes = [] {
  std::array<char, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) {
    const char byte = static_cast<char>(i);
    const bool allowed = velmohelp::IsAsciiAlnum(byte) || byte == '_' ||
                         byte == '-' || byte == '.';
    table[i] = allowed ? byte : '_';
  }
  return table;
}();

bool BeginsAsUrl(std::string_view text) {
  return text.starts_with("http://") || text.starts_with("https://") ||
         text.starts_with("file://");
}

bool EndsAsPage(std::string_view name) {
  return name.ends_with(kPageSuffix) || name.ends_with(".htm");
}

}  // namespace

bool isUrl(std::string text) { return BeginsAsUrl(text); }

bool ITEMInternal::isUrl(std::string text) { return BeginsAsUrl(text); }

bool isHTMLPage(std::string name) { return EndsAsPage(name); }

void NormalizePageID(std::string& id) {
  if (BeginsAsUrl(id) || EndsAsPage(id)) return;
  for (char& byte : id) byte = kFileNameBytes[static_cast<unsigned char>(byte)];
  id += kPageSuffix;
}
