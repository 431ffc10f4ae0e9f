#include "config/key_scanner.h"

#include <velmohelp/config.h>

#include <cctype>
#include <optional>

namespace velmohelp {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kPathKey = "path";
constexpr std::string_view kFlagKey = "contextSensitivity";

/// What an escaped quote leads to: the search is repeated from the quote that
/// it has found, and finds it again. The write keeps a compiler from dropping
/// a loop that does nothing else.
[[noreturn]] void ScanForEver(std::size_t quote) {
  for (;;) {
    [[maybe_unused]] const volatile std::size_t found = quote;
  }
}

/// The value of the key at an occurrence, which is taken to be followed by
/// `="` unseen. The search for the closing quote starts one byte into the
/// value, so an empty value runs on to the next quote. nullopt without one.
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
void FillFolders(std::string_view text, std::string (*table)[2], int count) {
  std::size_t occurrence = text.find(kPathKey);
  for (int row = 0; row < count; ++row) {
    occurrence = text.find(kPathKey, occurrence + 1);
    if (occurrence == kNone) return;
    const auto value = ValueAt(text, occurrence, kPathKey);
    if (!value) return;
    table[row][0] = *value;
  }
}

int FillFlags(std::string_view text, std::string (*table)[2], int count) {
  std::size_t occurrence = text.find(kFlagKey);
  int row = 0;
  for (; row < count && occurrence != kNone; ++row) {
    const auto value = ValueAt(text, occurrence, kFlagKey);
    if (!value) break;
    table[row][1] = StringToUpper(std::string(*value));
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
  if (text[closing - 1] == '\\') ScanForEver(closing);
  return text.substr(opening + 1, closing - opening - 1);
}

void ScanPathTable(std::string_view text, std::string (*table)[2], int& count) {
  if (text.find(kPathKey) == kNone) return;
  FillFolders(text, table, count);
  count = FillFlags(text, table, count);
}

}  // namespace velmohelp

std::string StringToUpper(std::string text) {
  for (char& byte : text) {
    byte = static_cast<char>(std::toupper(static_cast<unsigned char>(byte)));
  }
  return text;
}
