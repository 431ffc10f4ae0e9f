#include "resolve/page_target.h"

#include "platform/files.h"
#include "resolve/help_map/help_map.h"
#include "resolve/page_id.h"
#include "resolve/url_check.h"
#include "util/path_join.h"
#include "util/str_cat.h"

namespace velmohelp {
namespace {

/// A content folder. The path is root + name, as the rows' authors wrote it.
struct Folder {
  const std::string& name;
  std::string path;
};

/// "page.html#top" -> "page.html?nameAnchor=top": a file URL's fragment would
/// not reach the help page's own script.
std::string WithAnchorAsQuery(std::string_view page) {
  const std::size_t anchor = page.find('#');
  if (anchor == std::string_view::npos) return std::string(page);
  return StrCat(
      {page.substr(0, anchor), "?nameAnchor=", page.substr(anchor + 1)});
}

std::string LocalTarget(const Folder& folder, std::string_view page) {
  return JoinPathWithSlash(folder.path, page);
}

/// The search for one page, folder by folder.
class PageLookUp {
 public:
  /// target: becomes what the folder that was asked last has, or was expected
  /// to have, for the page.
  PageLookUp(const PageSearch& search, const std::string& page_id,
             LazyHelpMap& help_map, std::string& target)
      : search_(search),
        page_id_(page_id),
        help_map_(help_map),
        target_(target) {}

  bool AcceptFolder(const Folder& folder) {
    const std::string map_path = StrCat({folder.path, "//", kHelpMapName});
    const bool accepted = FileExists(search_.machine, map_path)
                              ? AcceptFromMap(folder, map_path)
                              : AcceptUnmapped(folder);
    if (RequestObserver* observer = search_.content.observer) {
      observer->OnContentFolder(folder.path, accepted, target_);
    }
    return accepted;
  }

 private:
  std::string OnlineTarget(const Folder& folder, std::string_view page) const {
    return StrCat({search_.content.base_url, folder.name, "/", page});
  }

  /// The state's flag decides, not the kind of target that is wanted: offline
  /// the URL is tested as a path, and fails.
  bool CanBeShown(const std::string& mapped_url) const {
    return search_.content.is_online
               ? CanLoadText(search_.machine, search_.budget, mapped_url)
               : FileExists(search_.machine, mapped_url);
  }

  /// A mapped page is trusted to exist; only a mapped URL is checked.
  bool AcceptMapped(const Folder& folder, std::string_view value) {
    if (IsUrl(value)) {
      std::string url(value);
      if (!CanBeShown(url)) return false;
      target_ = std::move(url);
    } else if (search_.wants_urls) {
      target_ = OnlineTarget(folder, value);
    } else {
      target_ = LocalTarget(folder, WithAnchorAsQuery(value));
    }
    return true;
  }

  void ReadMap(const std::string& path) {
    const bool is_read = help_map_.Read(path);
    if (RequestObserver* observer = search_.content.observer) {
      const std::string_view text = help_map_.Text();
      observer->OnHelpMap(path, is_read ? &text : nullptr);
    }
  }

  /// A folder with a help map is trusted to list all its pages: a page that is
  /// not in the map is not looked for in the folder.
  bool AcceptFromMap(const Folder& folder, const std::string& map_path) {
    ReadMap(map_path);
    if (const auto value = help_map_.Find(HelpMapKey(page_id_))) {
      return AcceptMapped(folder, *value);
    }
    if (!search_.wants_urls) target_ = LocalTarget(folder, page_id_);
    return false;
  }

  bool AcceptUnmapped(const Folder& folder) {
    if (search_.wants_urls) {
      target_ = OnlineTarget(folder, page_id_);
      return CanLoadText(search_.machine, search_.budget, target_);
    }
    target_ = LocalTarget(folder, page_id_);
    return FileExists(search_.machine, target_);
  }

  const PageSearch& search_;
  const std::string& page_id_;
  LazyHelpMap& help_map_;
  std::string& target_;
};

}  // namespace

bool FindPageTarget(const PageSearch& search, const std::string& page_id,
                    std::string& target) {
  if (RequestObserver* observer = search.content.observer) {
    observer->OnLookUp(page_id, HelpMapKey(page_id));
  }
  LazyHelpMap help_map(search.help_map);
  PageLookUp look_up(search, page_id, help_map, target);
  const bool found = help_map.BuildAfter([&] {
    return AnyLocalFolder(
        search.machine, search.content,
        [&](const std::string& root, const std::string& name) {
          return look_up.AcceptFolder({.name = name, .path = root + name});
        });
  });
  if (!found) target = page_id;
  return found;
}

}  // namespace velmohelp
