/* Help for a window: F1 shows the page of the focused widget, or of its nearest
 * parent that has one; the action "win.help" does the same, and is disabled
 * where there is none. */
#ifndef EXAMPLES_GTK_HELP_H_
#define EXAMPLES_GTK_HELP_H_

#include <gtk/gtk.h>

/* Gives a widget a page id, a text that is never freed; returns the widget. */
GtkWidget* with_page_id(GtkWidget* widget, const char* id);

/* Failures are written into status, which has to be in the window. */
void add_help(GtkApplicationWindow* window, GtkLabel* status);

#endif /* EXAMPLES_GTK_HELP_H_ */
