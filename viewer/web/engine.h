// The web engine as the viewer sets it up, shared by all windows.
#ifndef VIEWER_WEB_ENGINE_H_
#define VIEWER_WEB_ENGINE_H_

#include <webkit/webkit.h>

#include "viewer/gobject_ptr.h"
#include "viewer/web/navigation.h"
#include "viewer/web/places.h"

namespace viewer {

class Engine {
 public:
  explicit Engine(Places& places);

  WebKitWebContext* context() const { return context_.get(); }
  Places& places() const { return places_; }

  /// The session that fetches what a kind of page loads. That of local pages
  /// reaches no network; that of online pages keeps nothing.
  WebKitNetworkSession* Session(PageKind kind);

 private:
  Places& places_;
  ObjectPtr<WebKitWebContext> context_;
  ObjectPtr<WebKitNetworkSession> local_;
  ObjectPtr<WebKitNetworkSession> online_;
};

/// What pages of a kind may do.
ObjectPtr<WebKitSettings> PageSettings(PageKind kind);

}  // namespace viewer

#endif  // VIEWER_WEB_ENGINE_H_
