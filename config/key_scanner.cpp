#include "config/key_scanner.h"

#include <cctype>
#include <optional>

namespace velmohelp {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kPathKey = "path";
constexpr std::string_view kFlagKey = "contextSensitivity";

/// After an escaped quote the search starts again at that same quote and finds
/// it again, forever. The volatile write is a side effect: without one, a
/// compiler may drop the loop.
[[noreturn]] void ScanForever(std::size_t quote) {
  for (;;) {
    [[maybe_unused]] const volatile std::size_t found = quote;
  }
}

/// The value of the key at an occurrence. The two bytes after the key are taken
/// for `="` unseen, and the search for the closing quote starts one byte into
/// the value, so an empty value runs on to the next quote:
///
///   path="a\"b"          path="" x="y"
///   |     |    |          |     |   |
///   |     |    closing    |     |   closing
///   |     start           |     start
///   occurrence            occurrence
///
/// nullopt without a closing quote.
std::optional<std::string_view> ValueAt(std::string_view text,
                                        std::size_t occurrence,
                                        std::string_view key) {
  constexpr std::size_t kEqualsAndQuote = 2;
  const std::size_t start = occurrence + key.size() + kEqualsAndQuote;
  std::size_t quote = text.find('"', start + 1);
  while (quote != kNone && text[quote - 1] == '\\') {
    quote = text.find('"', quote + 1);
  }
  if (quote == kNone) return std::nullopt;
  return text.substr(start, quote - start);
}

/// The first "path" is the configuration's own key, not a content folder's.
void FillFolders(std::string_view text, ContentFolderRow* rows,
                 std::int32_t count) {
  std::size_t occurrence = text.find(kPathKey);
  for (std::int32_t row = 0; row < count; ++row) {
    occurrence = text.find(kPathKey, occurrence + 1);
    if (occurrence == kNone) return;
    const auto value = ValueAt(text, occurrence, kPathKey);
    if (!value) return;
    rows[row][0] = *value;
  }
}

std::int32_t FillFlags(std::string_view text, ContentFolderRow* rows,
                       std::int32_t count) {
  std::size_t occurrence = text.find(kFlagKey);
  std::int32_t row = 0;
  for (; row < count && occurrence != kNone; ++row) {
    const auto value = ValueAt(text, occurrence, kFlagKey);
    if (!value) break;
    rows[row][1] = ToUpper(*value);
    occurrence = text.find(kFlagKey, occurrence + 1);
  }
  return row;
}

}  // namespace

std::string_view ScanKey(std::string_view text, std::string_view key) {
  const std::size_t occurrence = text.find(key);
  if (occurrence == kNone) return {};
  const std::size_t equals = text.find('=', occurrence + key.size());
  if (equals == kNone) return {};
  const std::size_t opening = text.find('"', equals + 1);
  if (opening == kNone) return {};
  const std::size_t closing = text.find('"', opening + 1);
  if (closing == kNone) return {};
  if (text[closing - 1] == '\\') ScanForever(closing);
  return text.substr(opening + 1, closing - opening - 1);
}

std::string ScanValue(std::string_view text, std::string_view key) {
  const std::string_view value = ScanKey(text, key);
  const bool is_setting = key == "accessibleMode" || key == "localHelp";
  return is_setting ? ToUpper(value) : std::string(value);
}

void ScanContentFolders(std::string_view text, ContentFolderRow* rows,
                        std::int32_t& count) {
  if (text.find(kPathKey) == kNone) return;
  FillFolders(text, rows, count);
  count = FillFlags(text, rows, count);
}

std::string ToUpper(std::string_view text) {
  std::string upper(text);
  for (char& byte : upper) {
    byte = static_cast<char>(std::toupper(static_cast<unsigned char>(byte)));
  }
  return upper;
}

}  // namespace velmohelp
