// The help content folders of the help configuration, in the order in which a
// search goes through them.
#ifndef RESOLVE_CONTENT_FOLDERS_H_
#define RESOLVE_CONTENT_FOLDERS_H_

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/machine.h"
#include "platform/observer.h"

namespace velmohelp {

/// The mark of the rows that take part in a search.
inline constexpr std::string_view kContextSensitive = "YES";

/// Where help content is, according to the help configuration. The caller owns
/// all of it.
struct HelpContent {
  /// One for each content folder: its name and its mark.
  const std::string (*rows)[2];
  std::uint32_t row_count;
  const std::string& base_url;
  /// The end of the path of the downloaded content below the Preferences
  /// folder.
  const std::string& downloaded_suffix;
  /// The state's flag. A caller may ask for the other kind of target.
  bool is_online;
  RequestObserver* observer = nullptr;
};

/// Whether accept is true for the name of a context-sensitive folder. Asks row
/// by row, and no more after the first that it accepts.
bool AnyFolder(const HelpContent& content,
               const std::function<bool(const std::string& name)>& accept);

/// The same for the folders below the downloaded content first, then for those
/// below the installed content. root + name is a folder's path.
bool AnyLocalFolder(Machine& machine, const HelpContent& content,
                    const std::function<bool(const std::string& root,
                                             const std::string& name)>& accept);

}  // namespace velmohelp

#endif  // RESOLVE_CONTENT_FOLDERS_H_
