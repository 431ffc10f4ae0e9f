// An entry of the contents or of the search results, for GTK's lists.
#ifndef VIEWER_APP_HELP_ITEM_H_
#define VIEWER_APP_HELP_ITEM_H_

#include <gio/gio.h>

#include <string>
#include <vector>

#include "viewer/content/contents_list.h"
#include "viewer/content/search_index.h"

namespace viewer {

struct HelpItemData {
  std::string title;
  /// "" for an entry that only holds others.
  std::string address;
  /// Pango markup; "" for an entry of the contents.
  std::string snippet;
  std::vector<ContentsEntry> children;
};

G_DECLARE_FINAL_TYPE(HelpItem, help_item, VELMO, HELP_ITEM, GObject)

HelpItem* NewHelpItem(HelpItemData data);
const HelpItemData& DataOf(gpointer item);

/// The items of contents entries, as a new list model.
GListModel* ModelOf(const std::vector<ContentsEntry>& entries);
GListModel* ModelOf(const std::vector<SearchHit>& hits);

}  // namespace viewer

#endif  // VIEWER_APP_HELP_ITEM_H_
