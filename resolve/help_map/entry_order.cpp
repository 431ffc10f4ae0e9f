#include "resolve/help_map/entry_order.h"

#include <algorithm>
#include <array>
#include <span>

#include "resolve/help_map/entry_parser.h"

namespace velmohelp {
namespace {

using Places = std::span<EntryPlace>;

/// Among so few keys, and behind so many equal bytes, keys are compared whole.
constexpr std::size_t kFew = 24;
constexpr std::size_t kDeepest = 64;

/// The bytes at a place that lies in a key or at its end. Zero bytes stand for
/// what is not there.
Word BytesAt(const char* at, const char* end) {
  std::array<char, sizeof(Word)> bytes;
  const auto left = static_cast<std::size_t>(end - at);
  if (left < bytes.size()) {
    bytes.fill('\t');
    at = std::copy(at, end, bytes.begin()) - left;
  }
  Word word = LoadWord(at);
  const Word tabs = MarkBelow(word ^ EightTimes('\t'), 1);
  if (tabs != 0) word &= (Word{1} << FirstMarked(tabs) * 8) - 1;
  return __builtin_bswap64(word);
}

std::size_t ByteOf(const EntryPlace& place, std::size_t depth) {
  return place.bytes >> (56U - depth % sizeof(Word) * 8U) & 255U;
}

/// Sorts the places of a text that ends at end, stably: by one byte of the key
/// after the other, and those with the same bytes among themselves.
class Sorter {
 public:
  Sorter(Places all, const char* end) : scratch_(all.size()), end_(end) {
    Sort(all, 0);
  }

 private:
  /// All keys are the same up to depth, and longer or ended there.
  void Sort(Places places, std::size_t depth) {
    if (depth % sizeof(Word) == 0) {
      for (auto& place : places) {
        place.bytes = BytesAt(place.start + depth, end_);
      }
    }
    if (places.size() <= kFew || depth >= kDeepest) return SortWhole(places);
    GroupByByte(places, depth);
    for (std::size_t end = 0; end < places.size();) {
      const std::size_t start = end;
      const std::size_t byte = ByteOf(places[start], depth);
      while (end < places.size() && ByteOf(places[end], depth) == byte) ++end;
      SortGroup(places.subspan(start, end - start), depth);
    }
  }

  /// Behind a zero byte keys may have ended.
  void SortGroup(Places group, std::size_t depth) {
    if (group.size() == 1) return;
    if (ByteOf(group.front(), depth) == 0) return SortWhole(group);
    Sort(group, depth + 1);
  }

  void GroupByByte(Places places, std::size_t depth) {
    std::array<std::size_t, 257> starts{};
    for (const auto& place : places) ++starts[ByteOf(place, depth) + 1];
    const std::size_t first = ByteOf(places.front(), depth);
    if (starts[first + 1] == places.size()) return;
    for (std::size_t i = 1; i < starts.size(); ++i) starts[i] += starts[i - 1];
    for (const auto& place : places) {
      scratch_[starts[ByteOf(place, depth)]++] = place;
    }
    std::copy_n(scratch_.begin(), places.size(), places.begin());
  }

  /// Keys that are all the same are in order as they stand.
  void SortWhole(Places places) const {
    const auto before = [&](const EntryPlace& a, const EntryPlace& b) {
      if (a.bytes != b.bytes) return a.bytes < b.bytes;
      const int order = KeyOf(a).compare(KeyOf(b));
      return order != 0 ? order < 0 : a.start < b.start;
    };
    if (!std::ranges::is_sorted(places, before)) {
      std::ranges::sort(places, before);
    }
  }

  std::string_view KeyOf(const EntryPlace& place) const {
    HelpMapEntry entry;
    HelpMapReader({place.start, end_}).TakeLine(entry);
    return entry.key;
  }

  std::vector<EntryPlace> scratch_;
  const char* end_;
};

}  // namespace

std::vector<EntryPlace> EntriesByKey(std::string_view text) {
  std::vector<EntryPlace> places;
  HelpMapReader reader(text);
  HelpMapEntry entry;
  while (reader.Next(entry)) places.push_back({0, entry.key.data()});
  const Sorter sorted(places, text.data() + text.size());
  return places;
}

}  // namespace velmohelp
