#include "viewer/app/help_item.h"

#include <utility>

#include "viewer/gobject_ptr.h"

namespace viewer {

struct _HelpItem {
  GObject parent_instance;
  HelpItemData* data;
};

G_DEFINE_FINAL_TYPE(HelpItem, help_item, G_TYPE_OBJECT)

static void help_item_init(HelpItem*) {}

static void help_item_class_init(HelpItemClass* type) {
  G_OBJECT_CLASS(type)->finalize = [](GObject* object) {
    delete VELMO_HELP_ITEM(object)->data;
    G_OBJECT_CLASS(help_item_parent_class)->finalize(object);
  };
}

HelpItem* NewHelpItem(HelpItemData data) {
  auto* item = VELMO_HELP_ITEM(g_object_new(help_item_get_type(), nullptr));
  item->data = new HelpItemData(std::move(data));
  return item;
}

const HelpItemData& DataOf(gpointer item) {
  return *VELMO_HELP_ITEM(item)->data;
}

namespace {

void Append(GListStore* store, HelpItemData data) {
  const ObjectPtr<HelpItem> item(NewHelpItem(std::move(data)));
  g_list_store_append(store, item.get());
}

// The page's words are text, not markup; only the hits stand out.
std::string Escaped(const std::string& text) {
  return Adopt(
      g_markup_escape_text(text.data(), static_cast<gssize>(text.size())));
}

std::string SnippetMarkup(const std::string& snippet) {
  std::string markup;
  std::string plain;
  const auto flush = [&] { markup += Escaped(std::exchange(plain, {})); };
  for (const char c : snippet) {
    if (c == kHitBegin || c == kHitEnd) {
      flush();
      markup += c == kHitBegin ? "<b>" : "</b>";
    } else {
      plain += c;
    }
  }
  flush();
  return markup;
}

}  // namespace

GListModel* ModelOf(const std::vector<ContentsEntry>& entries) {
  GListStore* store = g_list_store_new(help_item_get_type());
  for (const auto& entry : entries) {
    Append(store, {.title = entry.title,
                   .address = entry.href,
                   .snippet = {},
                   .children = entry.children});
  }
  return G_LIST_MODEL(store);
}

GListModel* ModelOf(const std::vector<SearchHit>& hits) {
  GListStore* store = g_list_store_new(help_item_get_type());
  for (const auto& hit : hits) {
    Append(store, {.title = hit.title.empty() ? hit.address : hit.title,
                   .address = hit.address,
                   .snippet = SnippetMarkup(hit.snippet),
                   .children = {}});
  }
  return G_LIST_MODEL(store);
}

}  // namespace viewer
