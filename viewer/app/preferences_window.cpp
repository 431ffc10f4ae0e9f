#include "viewer/app/preferences_window.h"

#include <adwaita.h>
#include <glib/gi18n.h>

#include "viewer/app/ui.h"
#include "viewer/content/preferences.h"

namespace viewer {
namespace {

// The switch follows only what could be written.
void ChangeBrowser(GSimpleAction* action, GVariant* state, gpointer) {
  if (SetUsesBrowser(g_variant_get_boolean(state) != 0)) {
    g_simple_action_set_state(action, state);
  }
}

void ChangeOnline(GSimpleAction* action, GVariant* state, gpointer) {
  if (SetUsesOnlineHelp(g_variant_get_boolean(state) != 0)) {
    g_simple_action_set_state(action, state);
  }
}

bool ShowsOnline() { return !IsOnlineHelpLocked() && UsesOnlineHelp(); }

void Add(GActionMap* application, const char* name, bool state,
         GCallback change) {
  const ObjectPtr<GSimpleAction> action(g_simple_action_new_stateful(
      name, nullptr, g_variant_new_boolean(state)));
  g_signal_connect(action.get(), "change-state", change, nullptr);
  g_action_map_add_action(application, G_ACTION(action.get()));
}

GSimpleAction* Action(const char* name) {
  return G_SIMPLE_ACTION(g_action_map_lookup_action(
      G_ACTION_MAP(g_application_get_default()), name));
}

// Another program may have changed the files meanwhile.
void Refresh() {
  g_simple_action_set_state(Action("open-help-in-browser"),
                            g_variant_new_boolean(UsesBrowser()));
  GSimpleAction* online = Action("use-online-help");
  g_simple_action_set_state(online, g_variant_new_boolean(ShowsOnline()));
  g_simple_action_set_enabled(online, !IsOnlineHelpLocked());
}

}  // namespace

void AddPreferenceActions(GActionMap* application) {
  Add(application, "open-help-in-browser", UsesBrowser(),
      G_CALLBACK(ChangeBrowser));
  Add(application, "use-online-help", ShowsOnline(), G_CALLBACK(ChangeOnline));
  Refresh();
}

void ShowPreferences(GtkWindow* parent) {
  Refresh();
  const auto builder = LoadUi("preferences");
  auto* window = GTK_WINDOW(ObjectOf(builder.get(), "preferences"));
  if (IsOnlineHelpLocked()) {
    adw_action_row_set_subtitle(
        ADW_ACTION_ROW(ObjectOf(builder.get(), "online_row")),
        _("Your administrator has switched online help off."));
  }
  gtk_window_set_transient_for(window, parent);
  gtk_window_present(window);
}

}  // namespace viewer
