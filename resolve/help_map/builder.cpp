#include "resolve/help_map/builder.h"

#include <ios>

#include "resolve/help_map/entry_order.h"

namespace velmohelp {
namespace {

/// In the order of keys, entries lie all over the text. Asked for so far ahead
/// they are there when their turn comes; loading takes half as long.
constexpr std::size_t kAhead = 8;

bool IsSorted(std::string_view lines) {
  HelpMapReader reader(lines);
  HelpMapEntry entry;
  std::string_view last;
  while (reader.Next(entry)) {
    if (entry.key < last) return false;
    last = entry.key;
  }
  return true;
}

}  // namespace

void HelpMapFiller::PutFile(InputFile& file) {
  HelpMapLines lines(file);
  try {
    PutLines(lines);
  } catch (const std::ios_base::failure&) {
    Put(lines.lines());
    throw;
  }
}

/// A sorted file is never in memory as a whole.
void HelpMapFiller::PutLines(HelpMapLines& lines) {
  std::string_view rest;
  while (rest.empty() && lines.Next()) rest = PutSorted(lines.lines());
  if (rest.empty()) return;
  lines.ReadRest(rest);
  PutUnsorted(lines.lines());
}

void HelpMapFiller::Put(std::string_view lines) {
  PutUnsorted(PutSorted(lines));
}

/// Puts entries as long as none comes before the one that was put last; returns
/// the lines from the one that does. The first lines are looked at before any
/// is put: a file in no order must not cost the old nodes that it would skip.
std::string_view HelpMapFiller::PutSorted(std::string_view lines) {
  if (lines.find('\t') == std::string_view::npos) return {};
  std::string_view last;
  if (last_ != map_.end()) {
    last = last_->first;
  } else if (!IsSorted(lines)) {
    return lines;
  }
  HelpMapReader reader(lines);
  HelpMapEntry entry;
  while (reader.Next(entry)) {
    const int order = entry.key.compare(last);
    if (order < 0) return {entry.key.data(), lines.data() + lines.size()};
    if (order > 0) PutBehindLast(entry);
    last = entry.key;
  }
  return {};
}

void HelpMapFiller::PutBehindLast(const HelpMapEntry& entry) {
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

void HelpMapFiller::PutUnsorted(std::string_view lines) {
  const char* end = lines.data() + lines.size();
  const std::vector<EntryPlace> places = EntriesByKey(lines);
  auto at = map_.begin();
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (i + kAhead < places.size()) {
      __builtin_prefetch(places[i + kAhead].start);
    }
    HelpMapEntry entry;
    HelpMapReader({places[i].start, end}).TakeLine(entry);
    while (at != old_ && at->first < entry.key) ++at;
    if (at == old_) {
      PutBehindLast(entry);
      at = old_;
    } else if (at->first != entry.key) {
      map_.emplace_hint(at, entry.key, entry.value);
    }
  }
}

}  // namespace velmohelp
