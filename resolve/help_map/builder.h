// Builds a help map from the text of its file.
#ifndef RESOLVE_HELP_MAP_BUILDER_H_
#define RESOLVE_HELP_MAP_BUILDER_H_

#include <string_view>

#include "resolve/help_map/chunked_lines.h"
#include "resolve/help_map/entry_parser.h"
#include "resolve/help_map/map_type.h"
#include "util/input_file.h"

namespace velmohelp {

/// Makes a map hold the entries that it is given and, once it is destroyed, no
/// others, also when an exception ends the build. Freeing a node and allocating
/// it again is most of the cost of loading a map. So the builder walks through
/// the map once, in the order of keys, and reuses the node of every key that
/// comes again:
///
///   map        about   copy   cut    new    open    print
///              [ built ]      [  old: reused or erased  ]
///                      |      |
///                      last_  old_
class HelpMapBuilder {
 public:
  explicit HelpMapBuilder(HelpMap& map)
      : map_(map), old_(map.begin()), last_(map.end()) {}
  ~HelpMapBuilder() { map_.erase(old_, map_.end()); }
  HelpMapBuilder(const HelpMapBuilder&) = delete;
  HelpMapBuilder& operator=(const HelpMapBuilder&) = delete;

  /// Adds the entries of an open file. Throws std::ios_base::failure when the
  /// file breaks, after it has added the entries of the whole lines before.
  void AddFile(InputFile& file);

  /// Adds the entries of some lines, in any order. A key that was added before
  /// keeps its value.
  void Add(std::string_view lines);

 private:
  void AddLines(ChunkedLines& lines);
  std::string_view AddSorted(std::string_view lines);
  void AddUnsorted(std::string_view lines);
  void AddAfterLast(const HelpMapEntry& entry);

  HelpMap& map_;
  /// The first old node; all nodes after it are old.
  HelpMap::iterator old_;
  /// The entry with the greatest key so far; end() before the first one.
  HelpMap::iterator last_;
};

/// Makes map hold the entries of a text, and no others.
void BuildHelpMap(std::string_view text, HelpMap& map);

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_BUILDER_H_
