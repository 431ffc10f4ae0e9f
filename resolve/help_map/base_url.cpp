#include "platform/open_file.h"
#include "resolve/help_map/help_map.h"

namespace velmohelp {
namespace {

/// -1 when text is not found: the rule below calculates with it.
int PositionOf(const char* text, const std::string& in) {
  return static_cast<int>(in.find(text));
}

/// A read error after the line's end does not matter.
std::string FirstLine(InputFile& file) {
  std::string line;
  char piece[1024];
  while (line.size() <= file.limit()) {
    const std::string_view bytes(piece, file.Read(piece, sizeof piece));
    const std::size_t end = bytes.find_first_of("\r\n");
    line += bytes.substr(0, end);
    if (bytes.empty() || end != std::string_view::npos) return line;
  }
  return line;
}

/// "http://[fe80::1%en0]/help" -> "http://[fe80::1%25en0]/help".
std::string WithZoneSeparatorEncoded(std::string base_url) {
  if (base_url.find("://[") == std::string::npos) return base_url;
  const int bracket = PositionOf("]", base_url);
  const int percent = PositionOf("%", base_url);
  const int encoded = PositionOf("%25", base_url);
  const bool first_is_bare = percent != -1 && encoded == -1;
  const bool encoded_in_host = encoded <= bracket - 1;
  if (first_is_bare || !encoded_in_host) {
    // With neither "%" nor "]" there is no position, and replace throws
    // std::out_of_range. Callers rely on it.
    base_url.replace(static_cast<std::size_t>(percent), 1, "%25");
  }
  return base_url;
}

}  // namespace

std::string ReadHelpMapBaseUrl(const std::string& path) {
  const auto file = OpenInputFile(path, kSettingsFileLimit);
  if (!file) return "";
  return WithZoneSeparatorEncoded(FirstLine(*file));
}

}  // namespace velmohelp
