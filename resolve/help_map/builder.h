// Puts the entries of a help map's text into a map.
#ifndef RESOLVE_HELP_MAP_BUILDER_H_
#define RESOLVE_HELP_MAP_BUILDER_H_

#include <string_view>

#include "resolve/help_map/chunked_lines.h"
#include "resolve/help_map/entry_parser.h"
#include "resolve/help_map/help_map.h"
#include "util/input_file.h"

namespace velmohelp {

/// Makes a map hold the entries that it is given, and no others from its
/// destruction on, an exception's way out included. It goes through the map
/// once, in the order of keys: a node whose key comes again stays and gets the
/// new value, for freeing a node and making it anew is most of what loading a
/// map costs.
class HelpMapFiller {
 public:
  explicit HelpMapFiller(HelpMap& map)
      : map_(map), old_(map.begin()), last_(map.end()) {}
  ~HelpMapFiller() { map_.erase(old_, map_.end()); }
  HelpMapFiller(const HelpMapFiller&) = delete;
  HelpMapFiller& operator=(const HelpMapFiller&) = delete;

  /// Puts the entries of an open file. Throws std::ios_base::failure when it
  /// breaks; the entries of the whole lines before it are put then.
  void PutFile(InputFile& file);

  /// Puts entries in any order. Where a key was put before, that entry stays.
  void Put(std::string_view lines);

 private:
  void PutLines(HelpMapLines& lines);
  std::string_view PutSorted(std::string_view lines);
  void PutUnsorted(std::string_view lines);
  void PutBehindLast(const HelpMapEntry& entry);

  HelpMap& map_;
  /// The first node that nothing has been put in yet; all behind it are old.
  HelpMap::iterator old_;
  /// What was put last, in order.
  HelpMap::iterator last_;
};

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_BUILDER_H_
