// What the help client knows: the only place that calls libvelmohelp. The
// viewer repeats none of its rules.
#ifndef VIEWER_CONTENT_HELP_CLIENT_H_
#define VIEWER_CONTENT_HELP_CLIENT_H_

#include <string>
#include <vector>

namespace viewer {

/// What a product's configuration says.
struct ProductHelp {
  /// False when this process finds no valid configuration of the product: the
  /// client looks for it where the host program keeps its own, and nobody tells
  /// the viewer where that is.
  bool configured = false;
  /// The names of the content folders, in the configuration's order.
  std::vector<std::string> folders;
  /// The home page: a file URL, or "".
  std::string home;
};

/// Where help lies on this machine; each with a "/" at its end.
struct HelpLocations {
  std::string downloaded;
  std::string installed;
};

/// Blocks as the client does, for seconds when a name server is dead: never
/// call these from the main loop, and never two at once.
ProductHelp LoadProduct(const std::string& product, const std::string& locale);

/// The URL of the page of a page id, by the client's own rules; "" when there
/// is none. After LoadProduct of a configured product.
std::string FindPage(const std::string& page_id);

/// The rest reads files at most.

HelpLocations FindLocations();

/// The home page of one content folder: what its help map or its files name, as
/// a file URL; "" when it has none.
std::string FindHome(const std::string& directory);

/// True when the request is a URL.
bool IsUrl(const std::string& request);

/// A request without the double quotes around it.
std::string Unquoted(const std::string& request);

/// True when the administrator and the user allow online help.
bool IsOnlineAllowed();

}  // namespace viewer

#endif  // VIEWER_CONTENT_HELP_CLIENT_H_
