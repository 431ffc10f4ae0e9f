#include "viewer/app/sidebar.h"

#include <glib/gi18n.h>

#include <utility>

#include "viewer/app/help_item.h"
#include "viewer/app/list_rows.h"
#include "viewer/app/ui.h"
#include "viewer/gobject_ptr.h"

namespace viewer {
namespace {

GListModel* Children(gpointer item, gpointer) {
  const auto& children = DataOf(item).children;
  return children.empty() ? nullptr : ModelOf(children);
}

void SetModel(GtkListView* list, GListModel* model) {
  GtkNoSelection* selection = gtk_no_selection_new(model);
  gtk_list_view_set_model(list, GTK_SELECTION_MODEL(selection));
  g_object_unref(selection);
}

void SetRows(GtkListView* list, GtkListItemFactory* factory) {
  gtk_list_view_set_factory(list, factory);
  g_object_unref(factory);
}

gpointer ItemAt(GtkListView* list, guint position) {
  return g_list_model_get_item(G_LIST_MODEL(gtk_list_view_get_model(list)),
                               position);
}

std::string ResultSentence(const SearchAnswer& answer) {
  const auto count = answer.hits.size();
  if (count == 0) {
    return answer.complete ? _("No page found.") : _("Reading the pages…");
  }
  const TextPtr sentence(
      g_strdup_printf(ngettext("%u page found", "%u pages found", count),
                      static_cast<unsigned>(count)));
  return sentence.get();
}

}  // namespace

Sidebar::Sidebar(GtkBuilder* builder, Listener listener)
    : listener_(std::move(listener)),
      entry_(GTK_SEARCH_ENTRY(ObjectOf(builder, "search_entry"))),
      stack_(GTK_STACK(ObjectOf(builder, "sidebar_stack"))),
      label_(GTK_LABEL(ObjectOf(builder, "results_label"))),
      contents_list_(GTK_LIST_VIEW(ObjectOf(builder, "contents_list"))),
      results_list_(GTK_LIST_VIEW(ObjectOf(builder, "results_list"))) {
  SetUpLists();
  g_signal_connect(
      entry_, "search-changed",
      G_CALLBACK(+[](GtkSearchEntry*, Sidebar* self) { self->OnTyped(); }),
      this);
  g_signal_connect(entry_, "activate",
                   G_CALLBACK(+[](GtkSearchEntry*, Sidebar* self) {
                     self->ActivateResult(0);
                   }),
                   this);
  g_signal_connect(
      entry_, "stop-search",
      G_CALLBACK(+[](GtkSearchEntry*, Sidebar* self) { self->Search({}); }),
      this);
}

Sidebar::~Sidebar() {
  for (gpointer object :
       {gpointer(entry_), gpointer(contents_list_), gpointer(results_list_)}) {
    g_signal_handlers_disconnect_by_data(object, this);
  }
}

void Sidebar::SetUpLists() {
  SetRows(contents_list_, ContentsRows());
  SetRows(results_list_, ResultRows());
  g_signal_connect(contents_list_, "activate",
                   G_CALLBACK(+[](GtkListView*, guint at, Sidebar* self) {
                     self->ActivateContents(at);
                   }),
                   this);
  g_signal_connect(results_list_, "activate",
                   G_CALLBACK(+[](GtkListView*, guint at, Sidebar* self) {
                     self->ActivateResult(at);
                   }),
                   this);
}

void Sidebar::ActivateContents(guint position) {
  const ObjectPtr<GtkTreeListRow> row(
      static_cast<GtkTreeListRow*>(ItemAt(contents_list_, position)));
  if (!row) return;
  const ObjectPtr<GObject> item(
      G_OBJECT(gtk_tree_list_row_get_item(row.get())));
  const std::string& address = DataOf(item.get()).address;
  if (address.empty()) {
    gtk_tree_list_row_set_expanded(row.get(),
                                   !gtk_tree_list_row_get_expanded(row.get()));
  } else {
    listener_.on_page(address);
  }
}

void Sidebar::ActivateResult(guint position) {
  if (position >= hits_) return;
  const ObjectPtr<GObject> item(
      static_cast<GObject*>(ItemAt(results_list_, position)));
  if (item) listener_.on_result(DataOf(item.get()).address, text());
}

std::string Sidebar::text() const {
  return Copy(gtk_editable_get_text(GTK_EDITABLE(entry_)));
}

void Sidebar::OnTyped() {
  is_complete_ = false;
  hits_ = 0;
  const bool searches = !text().empty();
  if (!searches) gtk_stack_set_visible_child_name(stack_, "contents");
  listener_.on_search(text());
}

void Sidebar::Search(const std::string& text) {
  const std::string valid =
      Adopt(g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
  if (valid == this->text()) return OnTyped();
  gtk_editable_set_text(GTK_EDITABLE(entry_), valid.c_str());
}

void Sidebar::FocusSearch() { gtk_widget_grab_focus(GTK_WIDGET(entry_)); }

void Sidebar::ShowContents(const std::vector<ContentsEntry>& entries) {
  contents_ = static_cast<unsigned>(entries.size());
  SetModel(contents_list_,
           G_LIST_MODEL(gtk_tree_list_model_new(ModelOf(entries), FALSE, FALSE,
                                                Children, nullptr, nullptr)));
}

void Sidebar::ShowAnswer(const SearchAnswer& answer) {
  // An answer to what was typed before.
  if (answer.text != text() || answer.text.empty()) return;
  hits_ = static_cast<unsigned>(answer.hits.size());
  is_complete_ = answer.complete;
  SetModel(results_list_, ModelOf(answer.hits));
  gtk_label_set_label(label_, ResultSentence(answer).c_str());
  gtk_stack_set_visible_child_name(stack_, "results");
}

}  // namespace viewer
