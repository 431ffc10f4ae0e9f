#include "tools/check/map_file.h"

#include <algorithm>

#include "resolve/help_map/entry_parser.h"
#include "resolve/help_map/help_map.h"
#include "tools/files.h"

namespace velmohelp::tool {
namespace {

/// Removes the first line and its end from text and returns it.
std::string_view PopLine(std::string_view& text) {
  const auto* end = std::ranges::find_if(text, EndsLine);
  const std::string_view line(text.begin(), end);
  text.remove_prefix(line.size());
  if (text.starts_with("\r\n")) {
    text.remove_prefix(2);
  } else if (!text.empty()) {
    text.remove_prefix(1);
  }
  return line;
}

}  // namespace

MapFile::MapFile(const std::filesystem::path& path)
    : path_(path), text_(ReadWholeFile(path, kHelpMapLimit)) {
  // Each entry has a tab; a file of empty lines needs no room.
  const auto tabs = static_cast<std::size_t>(std::ranges::count(text_, '\t'));
  lines_.reserve(tabs);
  first_.reserve(tabs);
  std::string_view rest = text_;
  for (std::size_t number = 1; !rest.empty(); ++number) {
    Add(PopLine(rest), number);
  }
}

void MapFile::Add(std::string_view line, std::size_t number) {
  HelpMapEntry entry;
  if (HelpMapParser(line).ParseLine(entry)) {
    first_.emplace(entry.key, lines_.size());
    lines_.push_back({entry.key, entry.value, line.data(), number});
  } else if (!line.empty()) {
    skipped_.push_back(number);
  }
}

const MapLine* MapFile::Find(std::string_view key) const {
  const auto found = first_.find(key);
  return found == first_.end() ? nullptr : &lines_[found->second];
}

bool MapFile::HasHome() const { return Find(kHomePageKey) != nullptr; }

}  // namespace velmohelp::tool
