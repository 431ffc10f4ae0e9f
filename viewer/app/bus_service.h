// What the viewer offers on the session bus.
#ifndef VIEWER_APP_BUS_SERVICE_H_
#define VIEWER_APP_BUS_SERVICE_H_

#include <gio/gio.h>

#include <string>

namespace viewer {

class Application;

/// Show(verb, product, locale, request, platform_data) shows a request, and
/// returns when its window has taken it. State(product) tells what is on the
/// screen. Returns the object's number, or 0.
guint ExportService(GDBusConnection* bus, Application* application);

/// Tells whoever watches that State of the product has changed.
void EmitChanged(GDBusConnection* bus, const std::string& product);

}  // namespace viewer

#endif  // VIEWER_APP_BUS_SERVICE_H_
