// Help maps ("helpmap.txt"): which page belongs to a page id.
#ifndef RESOLVE_HELP_MAP_HELP_MAP_H_
#define RESOLVE_HELP_MAP_HELP_MAP_H_

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "util/file_text.h"

namespace velmohelp {

using HelpMap = std::map<std::string, std::string>;

/// The entry without which a help map is not complete.
inline constexpr char kHomePageKey[] = "VX_HOME";

inline constexpr char kHelpMapName[] = "helpmap.txt";
inline constexpr char kHelpMapBaseUrlName[] = "helpmapBaseUrl.txt";

/// Makes map hold the entries of a help map's text, and no others. The first of
/// several entries of a key stays.
void FillHelpMap(std::string_view text, HelpMap& map);

/// The help maps that one search reads, of which the caller gets to see only
/// the last: it alone is built as a map, the others are searched as text.
class HelpMapsRead {
 public:
  /// last: what KeepLast fills.
  explicit HelpMapsRead(HelpMap& last) : last_(last) {}

  /// Reads the file at path in place of the one before. Throws
  /// std::ios_base::failure when it breaks while it is read. False when it
  /// cannot be opened.
  bool Read(const std::string& path);

  /// The value of a key in the file read last; nullopt also when that file
  /// could not be opened or is not complete. Valid until the next Read.
  std::optional<std::string_view> Find(std::string_view key) const;

  /// What search returns. On the way out, an exception's too, the map becomes
  /// what the file read last holds; it stays as it is when none was read.
  template <typename Search>
  auto KeepLast(Search search) {
    try {
      auto result = search();
      Keep();
      return result;
    } catch (...) {
      Keep();
      throw;
    }
  }

 private:
  void Keep();

  HelpMap& last_;
  FileText text_;
  bool was_read_ = false;
};

/// A base URL with the zone separator of its IPv6 host percent-encoded, by the
/// rule (and with the mistake) that ITEMInternal::GetHelpMapBaseUrl tells.
std::string WithZoneSeparatorEncoded(std::string base_url);

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_HELP_MAP_H_
