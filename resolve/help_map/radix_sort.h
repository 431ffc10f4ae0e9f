// The order of a help map's entries, by a stable MSD radix sort.
#ifndef RESOLVE_HELP_MAP_RADIX_SORT_H_
#define RESOLVE_HELP_MAP_RADIX_SORT_H_

#include <string_view>
#include <vector>

#include "util/word_scan.h"

namespace velmohelp {

/// An entry of a text.
struct EntryRef {
  /// Eight bytes of the key, as a number that sorts as they do. Keys are
  /// spread over the whole text, and comparing them there is a cache miss.
  Word bytes;
  /// Where the key starts.
  const char* start;
};

/// The entries of a text sorted by key, bytewise; entries with the same key
/// keep their order.
std::vector<EntryRef> SortedEntries(std::string_view text);

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_RADIX_SORT_H_
