// The interface as it is described in data/*.ui.
#ifndef VIEWER_APP_UI_H_
#define VIEWER_APP_UI_H_

#include <gtk/gtk.h>

#include <string>

#include "viewer/gobject_ptr.h"

namespace viewer {

/// A builder with the objects of data/<name>.ui.
ObjectPtr<GtkBuilder> LoadUi(const std::string& name);

/// The builder's object of that name, which must be there.
GObject* ObjectOf(GtkBuilder* builder, const char* name);

}  // namespace viewer

#endif  // VIEWER_APP_UI_H_
