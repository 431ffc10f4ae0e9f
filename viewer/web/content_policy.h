// What a local page may load, in the web engine's own terms.
#ifndef VIEWER_WEB_CONTENT_POLICY_H_
#define VIEWER_WEB_CONTENT_POLICY_H_

#include <string>

#include "viewer/web/places.h"

namespace viewer {

/// A content security policy for the pages of a folder: its own files, and
/// nothing over the network.
std::string ContentPolicy(const ContentFolder& folder);

/// An HTML page with the policy in its text, before anything that it concerns.
/// The engine does not take policies from the headers of our own scheme.
std::string WithPolicy(std::string page, const std::string& policy);

}  // namespace viewer

#endif  // VIEWER_WEB_CONTENT_POLICY_H_
