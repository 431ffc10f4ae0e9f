// The person's two preferences, as commands of the application and as a window.
#ifndef VIEWER_APP_PREFERENCES_WINDOW_H_
#define VIEWER_APP_PREFERENCES_WINDOW_H_

#include <gtk/gtk.h>

namespace viewer {

/// Adds "open-help-in-browser" and "use-online-help", both with a state.
void AddPreferenceActions(GActionMap* application);

void ShowPreferences(GtkWindow* parent);

}  // namespace viewer

#endif  // VIEWER_APP_PREFERENCES_WINDOW_H_
