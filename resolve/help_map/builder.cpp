#include "resolve/help_map/builder.h"

#include <ios>

#include "resolve/help_map/radix_sort.h"

namespace velmohelp {
namespace {

/// In the order of keys, entries are spread over the whole text, and each one
/// is a cache miss. Prefetched so many entries ahead, it is in the cache
/// when its turn comes; loading then takes half as long.
constexpr std::size_t kPrefetchDistance = 8;

bool IsSorted(std::string_view lines) {
  HelpMapParser parser(lines);
  HelpMapEntry entry;
  std::string_view last;
  while (parser.Next(entry)) {
    if (entry.key < last) return false;
    last = entry.key;
  }
  return true;
}

}  // namespace

void HelpMapBuilder::AddFile(InputFile& file) {
  ChunkedLines lines(file);
  try {
    AddLines(lines);
  } catch (const std::ios_base::failure&) {
    Add(lines.lines());
    throw;
  }
}

/// A sorted file is never in memory as a whole: each chunk replaces the one
/// before.
void HelpMapBuilder::AddLines(ChunkedLines& lines) {
  std::string_view rest;
  while (rest.empty() && lines.Next()) rest = AddSorted(lines.lines());
  if (rest.empty()) return;
  lines.ReadRest(rest);
  AddUnsorted(lines.lines());
}

void HelpMapBuilder::Add(std::string_view lines) {
  AddUnsorted(AddSorted(lines));
}

/// Adds entries while their keys ascend; returns the lines from the first key
/// that does not. Checks the first lines before it adds any: an unsorted file
/// would erase the old nodes that it skips, and allocate them again.
std::string_view HelpMapBuilder::AddSorted(std::string_view lines) {
  if (lines.find('\t') == std::string_view::npos) return {};
  std::string_view last;
  if (last_ != map_.end()) {
    last = last_->first;
  } else if (!IsSorted(lines)) {
    return lines;
  }
  HelpMapParser parser(lines);
  HelpMapEntry entry;
  while (parser.Next(entry)) {
    const int order = entry.key.compare(last);
    if (order < 0) return {entry.key.data(), lines.data() + lines.size()};
    if (order > 0) AddAfterLast(entry);
    last = entry.key;
  }
  return {};
}

void HelpMapBuilder::AddAfterLast(const HelpMapEntry& entry) {
  int order = 1;
  while (old_ != map_.end() && (order = old_->first.compare(entry.key)) < 0) {
    old_ = map_.erase(old_);
  }
  if (order == 0) {
    old_->second = entry.value;
    last_ = old_++;
  } else {
    last_ = map_.emplace_hint(old_, entry.key, entry.value);
  }
}

void HelpMapBuilder::AddUnsorted(std::string_view lines) {
  const char* end = lines.data() + lines.size();
  const std::vector<EntryRef> entries = SortedEntries(lines);
  auto at = map_.begin();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (i + kPrefetchDistance < entries.size()) {
      __builtin_prefetch(entries[i + kPrefetchDistance].start);
    }
    HelpMapEntry entry;
    HelpMapParser({entries[i].start, end}).ParseLine(entry);
    while (at != old_ && at->first < entry.key) ++at;
    if (at == old_) {
      AddAfterLast(entry);
      at = old_;
    } else if (at->first != entry.key) {
      map_.emplace_hint(at, entry.key, entry.value);
    }
  }
}

void BuildHelpMap(std::string_view text, HelpMap& map) {
  HelpMapBuilder(map).Add(text);
}

}  // namespace velmohelp
