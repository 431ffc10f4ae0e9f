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

/// Calls visit(FolderKey) for the occurrences of key from a position on, until
/// it returns false; the first one without a closing quote is the last.
template <typename Visit>
void ForEachKey(std::string_view text, std::string_view key, std::size_t from,
                Visit visit) {
  std::size_t occurrence = text.find(key, from);
  while (occurrence != kNone) {
    const auto value = ValueAt(text, occurrence, key);
    if (!visit(FolderKey{occurrence, value}) || !value) return;
    occurrence = text.find(key, occurrence + 1);
  }
}

/// The first "path" is the configuration's own key, not a content folder's.
/// text has one.
std::size_t AfterOwnPath(std::string_view text) {
  return text.find(kPathKey) + 1;
}

void FillFolders(std::string_view text, ContentFolderRow* rows,
                 std::int32_t count) {
  std::int32_t row = 0;
  ForEachKey(text, kPathKey, AfterOwnPath(text), [&](const FolderKey& folder) {
    if (row >= count || !folder.value) return false;
    rows[row++][0] = *folder.value;
    return true;
  });
}

std::int32_t FillFlags(std::string_view text, ContentFolderRow* rows,
                       std::int32_t count) {
  std::int32_t row = 0;
  ForEachKey(text, kFlagKey, 0, [&](const FolderKey& flag) {
    if (row >= count || !flag.value) return false;
    rows[row++][1] = ToUpper(*flag.value);
    return true;
  });
  return row;
}

std::vector<FolderKey> KeysFrom(std::string_view text, std::string_view key,
                                std::size_t from, std::size_t rows) {
  std::vector<FolderKey> keys;
  ForEachKey(text, key, from, [&](const FolderKey& found) {
    if (keys.size() < rows) keys.push_back(found);
    return keys.size() < rows;
  });
  return keys;
}

}  // namespace

KeyPlace LocateKey(std::string_view text, std::string_view key) {
  KeyPlace place;
  place.key = text.find(key);
  if (place.key == kNone) return place;
  const std::size_t equals = text.find('=', place.key + key.size());
  if (equals == kNone) return place;
  place.opening = text.find('"', equals + 1);
  if (place.opening == kNone) return place;
  place.closing = text.find('"', place.opening + 1);
  return place;
}

std::string_view ScanKey(std::string_view text, std::string_view key,
                         RequestObserver* observer) {
  if (observer != nullptr) observer->BeforeScan(text, key);
  const KeyPlace place = LocateKey(text, key);
  if (place.closing == kNone) return {};
  if (text[place.closing - 1] == '\\') ScanForever(place.closing);
  return text.substr(place.opening + 1, place.closing - place.opening - 1);
}

std::string ScanValue(std::string_view text, std::string_view key,
                      RequestObserver* observer) {
  const std::string_view value = ScanKey(text, key, observer);
  const bool is_setting = key == "accessibleMode" || key == "localHelp";
  return is_setting ? ToUpper(value) : std::string(value);
}

void ScanContentFolders(std::string_view text, ContentFolderRow* rows,
                        std::int32_t& count) {
  if (text.find(kPathKey) == kNone) return;
  FillFolders(text, rows, count);
  count = FillFlags(text, rows, count);
}

std::vector<FolderKey> LocateFolders(std::string_view text, std::size_t rows) {
  if (text.find(kPathKey) == kNone) return {};
  return KeysFrom(text, kPathKey, AfterOwnPath(text), rows);
}

std::vector<FolderKey> LocateFlags(std::string_view text, std::size_t rows) {
  return KeysFrom(text, kFlagKey, 0, rows);
}

std::string ToUpper(std::string_view text) {
  std::string upper(text);
  for (char& byte : upper) {
    byte = static_cast<char>(std::toupper(static_cast<unsigned char>(byte)));
  }
  return upper;
}

}  // namespace velmohelp
