// A stable MSD radix sort: one byte of the key after the other, most
// significant byte first. Each step distributes the entries of a group to one
// group for each value of their next byte, in the order in which they come:
//
//   text       byte 0      byte 1      byte 2
//   print      c|ut        co|py       cop|y
//   cut        c|opy       co|st       cos|t
//   copy       c|ost       cu|t        cut
//   cost       p|rint      print       print
//
// Small groups are sorted by comparison.
#include "resolve/help_map/radix_sort.h"

#include <algorithm>
#include <array>
#include <span>

#include "resolve/help_map/entry_parser.h"

namespace velmohelp {
namespace {

using Entries = std::span<EntryRef>;

/// Groups up to this size are sorted by comparison, as are groups of keys that
/// have this many bytes in common.
constexpr std::size_t kSmallGroup = 24;
constexpr std::size_t kGreatestDepth = 64;

/// The next eight bytes of a key, the first one highest; zero bytes after its
/// end. at: in the key or at its end.
///
///   text   c  u  t  \t c  u  t  .
///   tabs   00 00 00 80 00 00 00 00    first mark: byte 3
///   bytes  c  u  t  00 00 00 00 00
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

std::size_t ByteOf(const EntryRef& entry, std::size_t depth) {
  return entry.bytes >> (56U - depth % sizeof(Word) * 8U) & 255U;
}

/// Sorts the entries of a text that ends at end.
class Sorter {
 public:
  Sorter(Entries all, const char* end) : scratch_(all.size()), end_(end) {
    Sort(all, 0);
  }

 private:
  /// Sorts entries whose keys have the first depth bytes in common.
  void Sort(Entries entries, std::size_t depth) {
    if (depth % sizeof(Word) == 0) {
      for (auto& entry : entries) {
        entry.bytes = BytesAt(entry.start + depth, end_);
      }
    }
    if (entries.size() <= kSmallGroup || depth >= kGreatestDepth) {
      return SortByComparison(entries);
    }
    GroupByByte(entries, depth);
    for (std::size_t end = 0; end < entries.size();) {
      const std::size_t start = end;
      const std::size_t byte = ByteOf(entries[start], depth);
      while (end < entries.size() && ByteOf(entries[end], depth) == byte) ++end;
      SortGroup(entries.subspan(start, end - start), depth);
    }
  }

  /// A zero byte may be the end of a key, where the next depth would read on.
  void SortGroup(Entries group, std::size_t depth) {
    if (group.size() == 1) return;
    if (ByteOf(group.front(), depth) == 0) return SortByComparison(group);
    Sort(group, depth + 1);
  }

  void GroupByByte(Entries entries, std::size_t depth) {
    std::array<std::size_t, 257> starts{};
    for (const auto& entry : entries) ++starts[ByteOf(entry, depth) + 1];
    const std::size_t first = ByteOf(entries.front(), depth);
    if (starts[first + 1] == entries.size()) return;
    for (std::size_t i = 1; i < starts.size(); ++i) starts[i] += starts[i - 1];
    for (const auto& entry : entries) {
      scratch_[starts[ByteOf(entry, depth)]++] = entry;
    }
    std::copy_n(scratch_.begin(), entries.size(), entries.begin());
  }

  /// The address decides between equal keys, so this sort is stable too. A
  /// group of equal keys is already in order, and large ones are common: check
  /// first.
  void SortByComparison(Entries entries) const {
    const auto before = [&](const EntryRef& a, const EntryRef& b) {
      if (a.bytes != b.bytes) return a.bytes < b.bytes;
      const int order = KeyOf(a).compare(KeyOf(b));
      return order != 0 ? order < 0 : a.start < b.start;
    };
    if (!std::ranges::is_sorted(entries, before)) {
      std::ranges::sort(entries, before);
    }
  }

  std::string_view KeyOf(const EntryRef& ref) const {
    HelpMapEntry entry;
    HelpMapParser({ref.start, end_}).ParseLine(entry);
    return entry.key;
  }

  std::vector<EntryRef> scratch_;
  const char* end_;
};

}  // namespace

std::vector<EntryRef> SortedEntries(std::string_view text) {
  std::vector<EntryRef> entries;
  HelpMapParser parser(text);
  HelpMapEntry entry;
  while (parser.Next(entry)) entries.push_back({0, entry.key.data()});
  const Sorter sorted(entries, text.data() + text.size());
  return entries;
}

}  // namespace velmohelp
