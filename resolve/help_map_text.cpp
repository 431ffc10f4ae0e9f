#include "resolve/help_map_text.h"

#include <array>

#include "util/input_file.h"

namespace velmohelp {
namespace {

constexpr std::string_view kFieldEnds = "\t\r\n";

bool EndsLine(char c) { return c == '\n' || c == '\r'; }

/// One look where three comparisons would be made for every byte of a map.
constexpr std::array<bool, 256> kEndsField = [] {
  std::array<bool, 256> table{};
  for (const char c : kFieldEnds) table[static_cast<unsigned char>(c)] = true;
  return table;
}();

bool EndsField(char c) { return kEndsField[static_cast<unsigned char>(c)]; }

/// Whether nothing but TABs stands between position and its line's start.
bool BeginsLine(std::string_view text, std::size_t position) {
  const std::size_t before = text.substr(0, position).find_last_not_of('\t');
  return before == std::string_view::npos || EndsLine(text[before]);
}

/// Beyond this length a key is looked for line by line: a search may compare
/// most of a key at every byte of the text, a walk compares it once a line.
constexpr std::size_t kLongestSearched = 256;

std::optional<std::string_view> WalkToEntry(std::string_view text,
                                            std::string_view key) {
  HelpMapReader reader(text);
  HelpMapEntry entry;
  while (reader.Next(entry)) {
    if (entry.key == key) return entry.value;
  }
  return std::nullopt;
}

}  // namespace

bool HelpMapReader::Next(HelpMapEntry& entry) {
  while (at_ != end_) {
    if (TakeLine(entry)) return true;
  }
  return false;
}

bool HelpMapReader::TakeLine(HelpMapEntry& entry) {
  entry.key = TakeField();
  entry.value = TakeField();
  SkipLine();
  return !entry.value.empty();
}

std::string_view HelpMapReader::TakeField() {
  while (at_ != end_ && *at_ == '\t') ++at_;
  const char* start = at_;
  while (at_ != end_ && !EndsField(*at_)) ++at_;
  return {start, at_};
}

/// The LF of a CR LF is left to be an empty line, which holds no entry.
void HelpMapReader::SkipLine() {
  while (at_ != end_ && !EndsLine(*at_)) ++at_;
  if (at_ != end_) ++at_;
}

std::optional<std::string_view> FindEntry(std::string_view text,
                                          std::string_view key) {
  constexpr std::size_t kNone = std::string_view::npos;
  if (key.empty() || key.find_first_of(kFieldEnds) != kNone) return {};
  if (key.size() > kLongestSearched) return WalkToEntry(text, key);
  for (std::size_t at = text.find(key); at != kNone;
       at = text.find(key, at + 1)) {
    HelpMapEntry entry;
    if (BeginsLine(text, at) &&
        HelpMapReader(text.substr(at)).TakeLine(entry) && entry.key == key) {
      return entry.value;
    }
  }
  return std::nullopt;
}

bool ReadHelpMapText(const std::string& path, std::string& text) {
  text.clear();
  std::ifstream file = OpenInputFile(path);
  if (!file.is_open()) return false;
  ReserveForFile(text, path);
  std::array<char, 65536> piece;
  std::size_t size = 0;
  try {
    do {
      size = ReadPiece(file, piece.data(), piece.size());
      text.append(piece.data(), size);
    } while (size == piece.size());
  } catch (const std::ios_base::failure&) {
    text.resize(text.find_last_of("\r\n") + 1);
    throw;
  }
  return true;
}

}  // namespace velmohelp
