#include "resolve/page_target.h"

#include <velmohelp/platform.h>
#include <velmohelp/resolve.h>
#include <velmohelp/text.h>

#include "platform/folders.h"
#include "resolve/url_check.h"

namespace velmohelp {
namespace {

/// One search through the content folders.
struct Search {
  Machine& machine;
  const HelpContent& content;
  const std::string& page_id;
  bool online;
  HelpMapsRead& maps;
  std::string& out;
};

/// The key of a page id: without the ".html" that normalisation put there.
/// Five bytes are cut whatever they are.
std::string KeyOf(const std::string& page_id) {
  constexpr std::size_t kSuffixLength = 5;
  if (page_id.size() < kSuffixLength) return page_id;
  return page_id.substr(0, page_id.size() - kSuffixLength);
}

std::string OnlineTarget(const Search& search, const std::string& folder,
                         const std::string& page) {
  return search.content.base_url + folder + "/" + page;
}

/// "page.html#top" -> "page.html?nameAnchor=top": a file URL's fragment would
/// not reach the help page's own script.
std::string WithAnchorAsQuery(std::string page) {
  const std::size_t anchor = page.find('#');
  if (anchor != std::string::npos) page.replace(anchor, 1, "?nameAnchor=");
  return page;
}

/// A mapped page is trusted to exist; only a mapped URL is checked, and with
/// the state's flag: offline it is tested as a path, and fails.
bool AcceptMapped(const Search& search, const std::string& folder,
                  const std::string& directory, const std::string& value) {
  if (isUrl(value)) {
    if (!ValidateUrl(search.machine, value, search.content.is_online)) {
      return false;
    }
    search.out = value;
  } else if (search.online) {
    search.out = OnlineTarget(search, folder, value);
  } else {
    search.out = AppentPath(directory, WithAnchorAsQuery(value));
  }
  return true;
}

/// A folder with a help map is trusted to list all its pages: a page that the
/// map does not know is not looked for beside it.
bool AcceptFromMap(const Search& search, const std::string& folder,
                   const std::string& directory, const std::string& map_path) {
  search.maps.Read(map_path);
  if (const auto value = search.maps.Find(KeyOf(search.page_id))) {
    return AcceptMapped(search, folder, directory, std::string(*value));
  }
  if (!search.online) search.out = AppentPath(directory, search.page_id);
  return false;
}

bool AcceptUnmapped(const Search& search, const std::string& folder,
                    const std::string& directory) {
  search.out = search.online ? OnlineTarget(search, folder, search.page_id)
                             : AppentPath(directory, search.page_id);
  return ValidateUrl(search.machine, search.out, search.online);
}

bool AcceptFolder(const Search& search, const std::string& root,
                  const std::string& folder) {
  const std::string directory = root + folder;
  const std::string map_path = directory + "//" + kHelpMapName;
  return search.machine.FileExists(map_path)
             ? AcceptFromMap(search, folder, directory, map_path)
             : AcceptUnmapped(search, folder, directory);
}

bool AcceptBelow(const Search& search, const std::string& root) {
  for (std::uint32_t i = 0; i < search.content.row_count; ++i) {
    const auto& [folder, mark] = search.content.rows[i];
    if (mark == kFolderTakesPart && AcceptFolder(search, root, folder)) {
      return true;
    }
  }
  return false;
}

}  // namespace

unsigned char ValidateId(Machine& machine, const HelpContent& content,
                         const std::string& page_id, bool online,
                         HelpMap& help_map, std::string& out) {
  HelpMapsRead maps(help_map);
  const Search search{machine, content, page_id, online, maps, out};
  const bool found = maps.KeepLast([&] {
    return AcceptBelow(search,
                       BelowPreferences(machine, content.downloaded_suffix)) ||
           AcceptBelow(search, ITEMInternal::GetInstalledContentPath() + "/");
  });
  if (found) return kTargetFound;
  out = page_id;
  return kTargetNotFound;
}

}  // namespace velmohelp
