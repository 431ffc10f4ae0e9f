// Owners of what GLib allocates.
#ifndef PLATFORM_LINUX_HELPERS_GOBJECT_PTR_H_
#define PLATFORM_LINUX_HELPERS_GOBJECT_PTR_H_

#include <glib-object.h>

#include <memory>
#include <string>

namespace velmohelp {

struct ObjectUnref {
  void operator()(gpointer object) const { g_object_unref(object); }
};
/// A reference to an object.
template <typename Object>
using ObjectPtr = std::unique_ptr<Object, ObjectUnref>;

struct Free {
  void operator()(gpointer memory) const { g_free(memory); }
};
/// A string that GLib allocated.
using TextPtr = std::unique_ptr<char, Free>;

/// A copy; "" for null.
inline std::string Text(const TextPtr& text) { return text ? text.get() : ""; }

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_GOBJECT_PTR_H_
