// Help maps ("helpmap.txt"): which page belongs to a page id. The rest of the
// library includes this header and no other of the folder.
#ifndef RESOLVE_HELP_MAP_HELP_MAP_H_
#define RESOLVE_HELP_MAP_HELP_MAP_H_

#include <optional>
#include <string>
#include <string_view>

#include "resolve/help_map/map_type.h"
#include "util/file_text.h"

namespace velmohelp {

inline constexpr std::string_view kHelpMapName = "helpmap.txt";
/// The key of the home page's entry.
inline constexpr char kHomePageKey[] = "VX_HOME";
inline constexpr std::string_view kHelpMapBaseUrlName = "helpmapBaseUrl.txt";

/// Makes map hold the entries of the file at path, and no others; of several
/// entries with the same key the first counts. True when the file was read and
/// has the home page's entry, without which a help map is not complete. Throws
/// std::ios_base::failure when the file breaks while it is read; map then holds
/// the entries of the whole lines before.
bool LoadHelpMap(const std::string& path, HelpMap& map);

/// The first line of a base URL file, with the zone separator of an IPv6 host
/// percent-encoded; "" when the file cannot be opened. Throws
/// std::out_of_range for a line with "://[" but neither "]" nor "%", and
/// std::ios_base::failure when the file breaks while it is read.
std::string ReadHelpMapBaseUrl(const std::string& path);

/// The help maps of one search. The caller sees only the last one: it alone is
/// built as a map, the others are searched as text.
class LazyHelpMap {
 public:
  /// map: what BuildAfter fills.
  explicit LazyHelpMap(HelpMap& map) : map_(map) {}

  /// Reads the file at path in place of the one before. False, and without a
  /// text, when it cannot be opened. Throws std::ios_base::failure when it
  /// breaks while it is read.
  bool Read(const std::string& path);

  /// The text of the file read last. Valid until the next Read.
  std::string_view Text() const { return text_.bytes(); }

  /// The value of a key in the file read last; nullopt also when that file
  /// could not be opened or is not complete. Valid until the next Read.
  std::optional<std::string_view> Find(std::string_view key) const;

  /// What search returns. Afterwards, and also when search throws, the map
  /// holds what the file read last holds; it stays as it is when none was read.
  template <typename Search>
  auto BuildAfter(Search search) {
    try {
      auto result = search();
      Build();
      return result;
    } catch (...) {
      Build();
      throw;
    }
  }

 private:
  void Build();

  HelpMap& map_;
  FileText text_;
  bool was_read_ = false;
};

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_HELP_MAP_H_
