// Serves local pages to the web engine.
#ifndef VIEWER_WEB_LOCAL_SCHEME_H_
#define VIEWER_WEB_LOCAL_SCHEME_H_

#include <webkit/webkit.h>

#include "viewer/web/places.h"

namespace viewer {

/// From now on the context asks places for every local address. places must
/// live as long as the context.
void ServeLocalPages(WebKitWebContext* context, const Places& places);

/// The errors with which a local page fails to load. The message is a sentence
/// for the person at the keyboard.
GQuark LocalPageError();

}  // namespace viewer

#endif  // VIEWER_WEB_LOCAL_SCHEME_H_
