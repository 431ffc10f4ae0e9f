#include "tests/support/key_oracle.h"

#include <vector>

namespace velmohelp::testing {
namespace {

bool IsAt(std::size_t at, const std::string& word, const std::string& text) {
  return text.compare(at, word.size(), word) == 0;
}

std::vector<std::size_t> PlacesOf(const std::string& word,
                                  const std::string& text) {
  std::vector<std::size_t> places;
  for (std::size_t at = 0; at + word.size() <= text.size(); ++at) {
    if (IsAt(at, word, text)) places.push_back(at);
  }
  return places;
}

/// The position of the next such byte; the end of the text without one.
std::size_t Next(char byte, std::size_t at, const std::string& text) {
  while (at < text.size() && text[at] != byte) ++at;
  return at;
}

/// The value begins two bytes after the word, and ends before the first quote
/// that is not its first byte and has no backslash before it.
std::optional<std::string> ValueAfter(std::size_t word_end,
                                      const std::string& text) {
  std::string value;
  for (std::size_t at = word_end + 2; at < text.size(); ++at) {
    if (text[at] == '"' && !value.empty() && value.back() != '\\') return value;
    value += text[at];
  }
  return std::nullopt;
}

int Fill(const std::string& word, std::size_t skipped, const std::string& text,
         std::vector<std::string>& column) {
  const std::vector<std::size_t> places = PlacesOf(word, text);
  int filled = 0;
  for (std::size_t i = skipped; i < places.size(); ++i) {
    if (static_cast<std::size_t>(filled) == column.size()) break;
    const auto value = ValueAfter(places[i] + word.size(), text);
    if (!value) break;
    column[static_cast<std::size_t>(filled++)] = *value;
  }
  return filled;
}

}  // namespace

std::string OracleBuffer(const std::string& file) {
  std::string buffer;
  bool dropped = false;
  for (std::size_t at = 0; at < file.size(); ++at) {
    if (at % 1023 == 0) dropped = false;
    if (file[at] == '\0') dropped = true;
    if (!dropped) buffer += file[at];
  }
  return buffer;
}

std::optional<std::string> OracleKey(const std::string& text,
                                     const std::string& key) {
  const std::vector<std::size_t> places = PlacesOf(key, text);
  if (places.empty()) return "";
  const std::size_t sign = Next('=', places[0] + key.size(), text);
  const std::size_t opening = Next('"', sign + 1, text);
  const std::size_t closing = Next('"', opening + 1, text);
  if (closing >= text.size()) return "";
  if (text[closing - 1] == '\\') return std::nullopt;
  const std::string value = text.substr(opening + 1, closing - opening - 1);
  const bool is_setting = key == "accessibleMode" || key == "localHelp";
  return is_setting ? OracleUpper(value) : value;
}

void OraclePathTable(const std::string& text, std::string (*table)[2],
                     int& count) {
  if (PlacesOf("path", text).empty()) return;
  if (count < 0) count = 0;
  std::vector<std::string> folders;
  std::vector<std::string> flags;
  for (int row = 0; row < count; ++row) {
    folders.push_back(table[row][0]);
    flags.push_back(table[row][1]);
  }
  Fill("path", 1, text, folders);
  const int found = Fill("contextSensitivity", 0, text, flags);
  for (int row = 0; row < count; ++row) {
    const auto i = static_cast<std::size_t>(row);
    table[row][0] = folders[i];
    table[row][1] = row < found ? OracleUpper(flags[i]) : flags[i];
  }
  count = found;
}

std::string OracleUpper(std::string text) {
  for (char& byte : text) {
    if (byte >= 'a' && byte <= 'z') byte = static_cast<char>(byte - 'a' + 'A');
  }
  return text;
}

}  // namespace velmohelp::testing
