#include "viewer/app/list_rows.h"

#include "viewer/app/help_item.h"

namespace viewer {
namespace {

GtkWidget* NewLabel() {
  GtkWidget* label = gtk_label_new(nullptr);
  gtk_label_set_xalign(GTK_LABEL(label), 0);
  gtk_label_set_wrap(GTK_LABEL(label), TRUE);
  gtk_label_set_wrap_mode(GTK_LABEL(label), PANGO_WRAP_WORD_CHAR);
  return label;
}

// What a screen reader says for the row.
void NameRow(GtkListItem* item, const std::string& name) {
  GtkWidget* row = gtk_widget_get_parent(gtk_list_item_get_child(item));
  if (row) {
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(row), GTK_ACCESSIBLE_PROPERTY_LABEL, name.c_str(), -1);
  }
}

void SetUpContents(GtkListItemFactory*, GtkListItem* item) {
  GtkWidget* expander = gtk_tree_expander_new();
  GtkWidget* label = NewLabel();
  gtk_label_set_lines(GTK_LABEL(label), 2);
  gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
  gtk_widget_set_hexpand(label, TRUE);
  gtk_tree_expander_set_child(GTK_TREE_EXPANDER(expander), label);
  gtk_list_item_set_child(item, expander);
}

void BindContents(GtkListItemFactory*, GtkListItem* item) {
  auto* row = GTK_TREE_LIST_ROW(gtk_list_item_get_item(item));
  auto* expander = GTK_TREE_EXPANDER(gtk_list_item_get_child(item));
  gtk_tree_expander_set_list_row(expander, row);
  const gpointer entry = gtk_tree_list_row_get_item(row);
  const std::string& title = DataOf(entry).title;
  gtk_label_set_label(GTK_LABEL(gtk_tree_expander_get_child(expander)),
                      title.c_str());
  NameRow(item, title);
  g_object_unref(entry);
}

void SetUpResult(GtkListItemFactory*, GtkListItem* item) {
  GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 2);
  GtkWidget* title = NewLabel();
  gtk_widget_add_css_class(title, "heading");
  GtkWidget* snippet = NewLabel();
  gtk_widget_add_css_class(snippet, "caption");
  gtk_label_set_lines(GTK_LABEL(snippet), 3);
  gtk_label_set_ellipsize(GTK_LABEL(snippet), PANGO_ELLIPSIZE_END);
  gtk_box_append(GTK_BOX(box), title);
  gtk_box_append(GTK_BOX(box), snippet);
  gtk_widget_set_margin_top(box, 4);
  gtk_widget_set_margin_bottom(box, 4);
  gtk_list_item_set_child(item, box);
}

void BindResult(GtkListItemFactory*, GtkListItem* item) {
  const auto& data = DataOf(gtk_list_item_get_item(item));
  GtkWidget* title = gtk_widget_get_first_child(gtk_list_item_get_child(item));
  GtkWidget* snippet = gtk_widget_get_next_sibling(title);
  gtk_label_set_label(GTK_LABEL(title), data.title.c_str());
  gtk_label_set_markup(GTK_LABEL(snippet), data.snippet.c_str());
  NameRow(item, data.title + ": " + gtk_label_get_text(GTK_LABEL(snippet)));
}

GtkListItemFactory* NewFactory(GCallback set_up, GCallback bind) {
  GtkListItemFactory* factory = gtk_signal_list_item_factory_new();
  g_signal_connect(factory, "setup", set_up, nullptr);
  g_signal_connect(factory, "bind", bind, nullptr);
  return factory;
}

}  // namespace

GtkListItemFactory* ContentsRows() {
  return NewFactory(G_CALLBACK(SetUpContents), G_CALLBACK(BindContents));
}

GtkListItemFactory* ResultRows() {
  return NewFactory(G_CALLBACK(SetUpResult), G_CALLBACK(BindResult));
}

}  // namespace viewer
