// How the rows of the contents and of the results look.
#ifndef VIEWER_APP_LIST_ROWS_H_
#define VIEWER_APP_LIST_ROWS_H_

#include <gtk/gtk.h>

namespace viewer {

/// For items of a tree of HelpItem.
GtkListItemFactory* ContentsRows();
/// For a list of HelpItem.
GtkListItemFactory* ResultRows();

}  // namespace viewer

#endif  // VIEWER_APP_LIST_ROWS_H_
