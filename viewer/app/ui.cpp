#include "viewer/app/ui.h"

#include "viewer/identity.h"

namespace viewer {

ObjectPtr<GtkBuilder> LoadUi(const std::string& name) {
  const std::string path = VIEWER_PATH "/" + name + ".ui";
  return ObjectPtr<GtkBuilder>(gtk_builder_new_from_resource(path.c_str()));
}

GObject* ObjectOf(GtkBuilder* builder, const char* name) {
  GObject* object = gtk_builder_get_object(builder, name);
  if (!object) g_error("The interface has no %s", name);
  return object;
}

}  // namespace viewer
