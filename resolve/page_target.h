// From a page id to what is shown: a local page or a URL.
#ifndef RESOLVE_PAGE_TARGET_H_
#define RESOLVE_PAGE_TARGET_H_

#include <cstdint>
#include <string>

#include "platform/machine.h"
#include "resolve/help_map/help_map.h"

namespace velmohelp {

/// A content folder's row: its name, and kFolderTakesPart or anything else.
using HelpPathRow = const std::string[2];
inline constexpr char kFolderTakesPart[] = "YES";

/// Where help content lies, as the help configuration tells. A view of the
/// caller's state, valid for one call.
struct HelpContent {
  HelpPathRow* rows;
  std::uint32_t row_count;
  const std::string& base_url;
  /// Ends the path of the downloaded content below the Preferences folder.
  const std::string& downloaded_suffix;
  /// The state's flag, which need not be what the caller asks for.
  bool is_online;
};

inline constexpr unsigned char kTargetFound = 0;
inline constexpr unsigned char kTargetNotFound = 3;

/// See ::ValidateID. help_map: filled with each map that is read.
unsigned char ValidateId(Machine& machine, const HelpContent& content,
                         const std::string& page_id, bool online,
                         HelpMap& help_map, std::string& out);

}  // namespace velmohelp

#endif  // RESOLVE_PAGE_TARGET_H_
