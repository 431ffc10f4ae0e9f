// Owns one reference of a GObject, or one block of GLib's memory.
#ifndef VIEWER_GOBJECT_PTR_H_
#define VIEWER_GOBJECT_PTR_H_

#include <glib-object.h>

#include <memory>
#include <string>

namespace viewer {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
template <typename T>
using ObjectPtr = std::unique_ptr<T, Unref>;

/// A further reference to an object that somebody else owns too.
template <typename T>
ObjectPtr<T> Retain(T* object) {
  return ObjectPtr<T>(static_cast<T*>(g_object_ref(object)));
}

struct GFree {
  void operator()(void* block) const { g_free(block); }
};
using TextPtr = std::unique_ptr<char, GFree>;

/// A copy of a text of GLib's, which is freed. "" for null.
inline std::string Adopt(char* text) {
  const TextPtr owner(text);
  return text ? text : "";
}

/// A copy of a text that somebody else owns. "" for null.
inline std::string Copy(const char* text) { return text ? text : ""; }

struct ErrorFree {
  void operator()(GError* error) const { g_error_free(error); }
};
using ErrorPtr = std::unique_ptr<GError, ErrorFree>;

}  // namespace viewer

#endif  // VIEWER_GOBJECT_PTR_H_
