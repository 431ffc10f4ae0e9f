// The order of a help map's entries.
#ifndef RESOLVE_HELP_MAP_ENTRY_ORDER_H_
#define RESOLVE_HELP_MAP_ENTRY_ORDER_H_

#include <string_view>
#include <vector>

#include "util/word_scan.h"

namespace velmohelp {

/// An entry by its place in the text.
struct EntryPlace {
  /// Bytes of the key, as a number that compares as they do: keys lie all over
  /// the text, and a comparison that goes there waits for memory.
  Word bytes;
  /// Where the key starts.
  const char* start;
};

/// The entries of a text by key, bytewise; entries of one key keep their order.
std::vector<EntryPlace> EntriesByKey(std::string_view text);

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_ENTRY_ORDER_H_
