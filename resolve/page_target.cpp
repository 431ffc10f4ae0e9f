#include "resolve/page_target.h"

#include "platform/files.h"
#include "resolve/help_map/help_map.h"
#include "resolve/page_id.h"
#include "resolve/url_check.h"
#include "util/path_join.h"
#include "util/str_cat.h"

namespace velmohelp {
namespace {

/// One search through the content folders.
struct Search {
  Machine& machine;
  FetchBudget& budget;
  const HelpContent& content;
  const std::string& page_id;
  bool online;
  LazyHelpMap& help_map;
  std::string& out;
};

/// A content folder. The path is root + name, as the rows' authors wrote it.
struct Folder {
  const std::string& name;
  std::string path;
};

std::string OnlineTarget(const Search& search, const Folder& folder,
                         std::string_view page) {
  return StrCat({search.content.base_url, folder.name, "/", page});
}

std::string LocalTarget(const Folder& folder, std::string_view page) {
  return JoinPathWithSlash(folder.path, page);
}

/// "page.html#top" -> "page.html?nameAnchor=top": a file URL's fragment would
/// not reach the help page's own script.
std::string WithAnchorAsQuery(std::string_view page) {
  const std::size_t anchor = page.find('#');
  if (anchor == std::string_view::npos) return std::string(page);
  return StrCat(
      {page.substr(0, anchor), "?nameAnchor=", page.substr(anchor + 1)});
}

/// A mapped page is trusted to exist; only a mapped URL is checked, and with
/// the state's flag: offline it is tested as a path, and fails.
bool AcceptMapped(const Search& search, const Folder& folder,
                  std::string_view value) {
  if (IsUrl(value)) {
    std::string url(value);
    if (!ValidateUrl(search.machine, search.budget, url,
                     search.content.is_online)) {
      return false;
    }
    search.out = std::move(url);
  } else if (search.online) {
    search.out = OnlineTarget(search, folder, value);
  } else {
    search.out = LocalTarget(folder, WithAnchorAsQuery(value));
  }
  return true;
}

void ReadMap(const Search& search, const std::string& map_path) {
  const bool is_read = search.help_map.Read(map_path);
  RequestObserver* observer = search.content.observer;
  if (observer == nullptr) return;
  const std::string_view text = search.help_map.Text();
  observer->OnHelpMap(map_path, is_read ? &text : nullptr);
}

/// A folder with a help map is trusted to list all its pages: a page that is
/// not in the map is not looked for in the folder.
bool AcceptFromMap(const Search& search, const Folder& folder,
                   const std::string& map_path) {
  ReadMap(search, map_path);
  if (const auto value = search.help_map.Find(HelpMapKey(search.page_id))) {
    return AcceptMapped(search, folder, *value);
  }
  if (!search.online) search.out = LocalTarget(folder, search.page_id);
  return false;
}

bool AcceptUnmapped(const Search& search, const Folder& folder) {
  search.out = search.online ? OnlineTarget(search, folder, search.page_id)
                             : LocalTarget(folder, search.page_id);
  return ValidateUrl(search.machine, search.budget, search.out, search.online);
}

bool AcceptFolder(const Search& search, const Folder& folder) {
  const std::string map_path = StrCat({folder.path, "//", kHelpMapName});
  const bool accepted = FileExists(search.machine, map_path)
                            ? AcceptFromMap(search, folder, map_path)
                            : AcceptUnmapped(search, folder);
  if (search.content.observer != nullptr) {
    search.content.observer->OnContentFolder(folder.path, accepted, search.out);
  }
  return accepted;
}

}  // namespace

bool FindPageTarget(Machine& machine, FetchBudget& budget,
                    const HelpContent& content, const std::string& page_id,
                    bool online, HelpMap& help_map, std::string& out) {
  LazyHelpMap lazy_map(help_map);
  const Search search{.machine = machine,
                      .budget = budget,
                      .content = content,
                      .page_id = page_id,
                      .online = online,
                      .help_map = lazy_map,
                      .out = out};
  if (content.observer != nullptr) {
    content.observer->OnLookUp(page_id, HelpMapKey(page_id));
  }
  const bool found = lazy_map.BuildAfter([&] {
    return AnyLocalFolder(
        machine, content,
        [&](const std::string& root, const std::string& name) {
          return AcceptFolder(search, {.name = name, .path = root + name});
        });
  });
  if (!found) out = page_id;
  return found;
}

}  // namespace velmohelp
