// Help maps ("helpmap.txt"): which page belongs to a page id.
#ifndef RESOLVE_HELP_MAP_H_
#define RESOLVE_HELP_MAP_H_

#include <map>
#include <string>
#include <string_view>

namespace velmohelp {

using HelpMap = std::map<std::string, std::string>;

/// The entry without which a help map is not complete.
inline constexpr char kHomePageKey[] = "VX_HOME";

inline constexpr char kHelpMapName[] = "helpmap.txt";
inline constexpr char kHelpMapBaseUrlName[] = "helpmapBaseUrl.txt";

/// Puts the entries of a help map's text into an empty map. The first of
/// several entries of a key stays.
void InsertEntries(std::string_view text, HelpMap& map);

/// A base URL with the zone separator of its IPv6 host percent-encoded, by the
/// rule (and with the mistake) that ITEMInternal::GetHelpMapBaseUrl tells.
std::string WithZoneSeparatorEncoded(std::string base_url);

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_H_
