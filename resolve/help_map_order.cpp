#include "resolve/help_map_order.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace velmohelp {
namespace {

using Entries = std::vector<HelpMapEntry>;

/// An entry's place in the file, and eight bytes of its key as a number that
/// compares as they do: keys lie all over the file's text, and a comparison
/// that goes there waits for memory.
struct Rank {
  std::uint64_t bytes;
  std::size_t place;
};

/// Behind so many equal bytes, and among so few keys, keys are compared whole.
constexpr std::size_t kDeepest = 64;
constexpr std::size_t kFew = 16;

/// Zero bytes stand for what is not there.
std::uint64_t BytesAt(std::string_view key, std::size_t depth) {
  std::uint64_t bytes = 0;
  for (std::size_t i = depth; i < depth + sizeof bytes; ++i) {
    const char byte = i < key.size() ? key[i] : '\0';
    bytes = bytes << 8U | static_cast<unsigned char>(byte);
  }
  return bytes;
}

void SortWhole(std::span<Rank> ranks, const Entries& entries) {
  std::ranges::sort(ranks, [&](const Rank& a, const Rank& b) {
    const int order = entries[a.place].key.compare(entries[b.place].key);
    return order != 0 ? order < 0 : a.place < b.place;
  });
}

/// All keys are the same up to depth.
void SortFrom(std::size_t depth, std::span<Rank> ranks,
              const Entries& entries) {
  if (ranks.size() <= kFew || depth >= kDeepest) {
    return SortWhole(ranks, entries);
  }
  for (Rank& rank : ranks) {
    rank.bytes = BytesAt(entries[rank.place].key, depth);
  }
  std::ranges::sort(ranks, {}, &Rank::bytes);
  for (std::size_t end = 0; end < ranks.size();) {
    const std::size_t start = end;
    while (end < ranks.size() && ranks[end].bytes == ranks[start].bytes) ++end;
    if (end - start > 1) {
      SortFrom(depth + sizeof(Rank::bytes), ranks.subspan(start, end - start),
               entries);
    }
  }
}

}  // namespace

void SortByKey(Entries& entries) {
  std::vector<Rank> ranks(entries.size());
  for (std::size_t i = 0; i < ranks.size(); ++i) ranks[i].place = i;
  SortFrom(0, ranks, entries);
  Entries sorted;
  sorted.reserve(entries.size());
  for (const Rank& rank : ranks) sorted.push_back(entries[rank.place]);
  entries = std::move(sorted);
}

}  // namespace velmohelp
