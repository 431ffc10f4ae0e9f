#include "viewer/app/find_bar.h"

#include <glib/gi18n.h>

#include <utility>

#include "viewer/app/ui.h"

namespace viewer {
namespace {

constexpr guint kMostMatches = 1000;
constexpr auto kOptions = static_cast<guint32>(
    WEBKIT_FIND_OPTIONS_CASE_INSENSITIVE | WEBKIT_FIND_OPTIONS_WRAP_AROUND);

}  // namespace

FindBar::FindBar(GtkBuilder* builder, std::function<void()> on_change)
    : on_change_(std::move(on_change)),
      bar_(GTK_SEARCH_BAR(ObjectOf(builder, "find_bar"))),
      entry_(GTK_SEARCH_ENTRY(ObjectOf(builder, "find_entry"))),
      label_(GTK_LABEL(ObjectOf(builder, "find_label"))) {
  gtk_search_bar_connect_entry(bar_, GTK_EDITABLE(entry_));
  // Shown one drawing after it is opened: only then it takes what is typed.
  g_signal_connect_swapped(
      entry_, "map", G_CALLBACK(+[](FindBar* self) { self->on_change_(); }),
      this);
  g_signal_connect_swapped(entry_, "search-changed",
                           G_CALLBACK(+[](FindBar* self) { self->Start(); }),
                           this);
  g_signal_connect_swapped(entry_, "activate",
                           G_CALLBACK(+[](FindBar* self) { self->Next(); }),
                           this);
  g_signal_connect_swapped(entry_, "next-match",
                           G_CALLBACK(+[](FindBar* self) { self->Next(); }),
                           this);
  g_signal_connect_swapped(entry_, "previous-match",
                           G_CALLBACK(+[](FindBar* self) { self->Previous(); }),
                           this);
}

FindBar::~FindBar() {
  Disconnect();
  g_signal_handlers_disconnect_by_data(entry_, this);
}

void FindBar::Disconnect() {
  if (controller_) {
    g_signal_handlers_disconnect_by_data(controller_.get(), this);
  }
}

void FindBar::SetView(WebKitWebView* view) {
  Disconnect();
  controller_ = Retain(webkit_web_view_get_find_controller(view));
  g_signal_connect(controller_.get(), "counted-matches",
                   G_CALLBACK(+[](WebKitFindController*, guint count,
                                  FindBar* self) { self->ShowMatches(count); }),
                   this);
}

void FindBar::Open() {
  gtk_search_bar_set_search_mode(bar_, TRUE);
  gtk_widget_grab_focus(GTK_WIDGET(entry_));
}

bool FindBar::is_open() const {
  return gtk_widget_get_mapped(GTK_WIDGET(entry_)) != 0;
}

void FindBar::Start() {
  const char* text = gtk_editable_get_text(GTK_EDITABLE(entry_));
  if (*text == '\0') {
    webkit_find_controller_search_finish(controller_.get());
    return ShowMatches(0);
  }
  webkit_find_controller_search(controller_.get(), text, kOptions,
                                kMostMatches);
  webkit_find_controller_count_matches(controller_.get(), text, kOptions,
                                       kMostMatches);
}

void FindBar::Next() { webkit_find_controller_search_next(controller_.get()); }

void FindBar::Previous() {
  webkit_find_controller_search_previous(controller_.get());
}

void FindBar::ShowMatches(unsigned matches) {
  matches_ = matches;
  const bool is_empty = *gtk_editable_get_text(GTK_EDITABLE(entry_)) == '\0';
  const TextPtr sentence(
      g_strdup_printf(ngettext("%u hit", "%u hits", matches), matches));
  gtk_label_set_label(label_, is_empty ? "" : sentence.get());
  on_change_();
}

}  // namespace viewer
