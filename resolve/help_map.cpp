#include "resolve/help_map.h"

#include <velmohelp/resolve.h>
#include <velmohelp/text.h>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "util/input_file.h"

namespace velmohelp {
namespace {

constexpr char kSeparator = '\t';

struct Entry {
  std::string_view key;
  std::string_view value;
};

/// Takes the first line, without its end (LF, CR or CR LF), off text.
std::string_view TakeLine(std::string_view& text) {
  const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
  text.remove_prefix(line.size());
  const std::size_t end = text.starts_with("\r\n") ? 2 : 1;
  text.remove_prefix(std::min(end, text.size()));
  return line;
}

/// Takes the next field off line; nullopt at its end.
std::optional<std::string_view> TakeField(std::string_view& line) {
  const std::size_t start = line.find_first_not_of(kSeparator);
  if (start == std::string_view::npos) return std::nullopt;
  line.remove_prefix(start);
  const std::string_view field = line.substr(0, line.find(kSeparator));
  line.remove_prefix(field.size());
  return field;
}

/// The first two fields of a line; nullopt when it has fewer.
std::optional<Entry> EntryOf(std::string_view line) {
  const auto key = TakeField(line);
  const auto value = TakeField(line);
  if (!key || !value) return std::nullopt;
  return Entry{*key, *value};
}

std::vector<Entry> EntriesOf(std::string_view text) {
  std::vector<Entry> entries;
  while (!text.empty()) {
    if (const auto entry = EntryOf(TakeLine(text))) entries.push_back(*entry);
  }
  return entries;
}

/// Appends the rest of file to text; what was read before a hard read error
/// stays there.
void ReadRest(std::ifstream& file, std::string& text) {
  std::array<char, 65536> piece;
  std::size_t size = 0;
  do {
    size = ReadPiece(file, piece.data(), piece.size());
    text.append(piece.data(), size);
  } while (size == piece.size());
}

std::string_view CompleteLines(std::string_view text) {
  return text.substr(0, text.find_last_of("\r\n") + 1);
}

}  // namespace

void InsertEntries(std::string_view text, HelpMap& map) {
  std::vector<Entry> entries = EntriesOf(text);
  // Building a map in key order touches each node once; a file in any other
  // order is sorted first, which costs less than searching for each place.
  const auto before = [](const Entry& a, const Entry& b) {
    return a.key < b.key;
  };
  if (!std::is_sorted(entries.begin(), entries.end(), before)) {
    std::stable_sort(entries.begin(), entries.end(), before);
  }
  for (const Entry& entry : entries) {
    map.emplace_hint(map.end(), entry.key, entry.value);
  }
}

}  // namespace velmohelp

bool ITEMInternal::LoadMapFile(const std::string& path,
                               velmohelp::HelpMap& map) {
  map.clear();
  std::ifstream file = velmohelp::OpenInputFile(path);
  if (!file.is_open()) return false;
  std::string text;
  try {
    velmohelp::ReadRest(file, text);
  } catch (const std::ios_base::failure&) {
    velmohelp::InsertEntries(velmohelp::CompleteLines(text), map);
    throw;
  }
  velmohelp::InsertEntries(text, map);
  return map.contains(velmohelp::kHomePageKey);
}

std::string ITEMInternal::GetHelpMapPath(const std::string& folder) {
  return AppendToPath(folder, velmohelp::kHelpMapName);
}

std::string ITEMInternal::GetHelpMapBaseUrlPath(const std::string& folder) {
  return AppendToPath(folder, velmohelp::kHelpMapBaseUrlName);
}
