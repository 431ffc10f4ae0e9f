#include "platform/linux/preference_file.h"

#include <algorithm>

#include "util/percent_encoding.h"
#include "util/trim.h"
#include "util/utf8.h"

namespace velmohelp {
namespace {

constexpr std::string_view kGroup = "[Preferences]";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr std::string_view kSpaces = " \t\r\v\f";

/// Consumes empty lines: a file of nothing else must not cost a request
/// seconds.
void SkipLineFeeds(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of('\n'), text.size()));
}

/// Consumes and returns the first line of the text, trimmed.
std::string_view ConsumeLine(std::string_view& text) {
  const std::string_view line = text.substr(0, text.find('\n'));
  text.remove_prefix(line.size() < text.size() ? line.size() + 1 : line.size());
  return Trimmed(line, kSpaces);
}

/// The value of a line "key = value", when it has this key.
std::optional<std::string_view> ValueIn(std::string_view line,
                                        std::string_view key) {
  const std::size_t sign = line.find('=');
  if (line.starts_with('#') || sign == std::string_view::npos) {
    return std::nullopt;
  }
  if (Trimmed(line.substr(0, sign), kSpaces) != key) return std::nullopt;
  return Trimmed(line.substr(sign + 1), kSpaces);
}

bool IsText(std::string_view value) {
  return value.find('\0') == std::string_view::npos && IsUtf8(value);
}

}  // namespace

std::optional<std::string> PreferenceInText(std::string_view text,
                                            std::string_view key) {
  // An editor's byte order mark must not hide the administrator's group.
  if (text.starts_with(kByteOrderMark)) {
    text.remove_prefix(kByteOrderMark.size());
  }
  std::optional<std::string_view> value;
  bool in_group = false;
  for (SkipLineFeeds(text); !text.empty(); SkipLineFeeds(text)) {
    const std::string_view line = ConsumeLine(text);
    if (line.starts_with('[')) {
      in_group = line == kGroup;
    } else if (const auto found = ValueIn(line, key); in_group && found) {
      value = found;
    }
  }
  if (!value || !IsText(*value)) return std::nullopt;
  return std::string(*value);
}

std::string PreferenceFileName(std::string_view domain) {
  std::string name;
  for (const char byte : domain) {
    const bool encode = byte == '/' || byte == '\0' || byte == '%' ||
                        (byte == '.' && name.empty());
    name += encode ? EscapeByte(byte) : std::string(1, byte);
  }
  return name + ".conf";
}

}  // namespace velmohelp
