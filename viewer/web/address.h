// Addresses of local pages inside the viewer:
// velmohelp://PLACE/PATH?QUERY#FRAGMENT.
//
// Local pages have a scheme of their own, so that the web engine never opens a
// file: it asks the viewer, which opens files below content folders only.
#ifndef VIEWER_WEB_ADDRESS_H_
#define VIEWER_WEB_ADDRESS_H_

#include <optional>
#include <string>

namespace viewer {

inline constexpr char kLocalScheme[] = "velmohelp";

struct Address {
  /// Where the path begins: the host of the address.
  std::string place;
  /// Decoded, without a "/" at its start.
  std::string path;
  /// As written, without "?" and "#".
  std::string query;
  std::string fragment;

  std::string Uri() const;
  /// The address without query and fragment: the document itself.
  std::string Document() const;
};

/// Empty when uri is not an address of a local page.
std::optional<Address> ParseAddress(const std::string& uri);

/// A file URL's path, decoded, with its query and fragment as written; place is
/// "". Empty when url is not a file URL with an absolute path.
std::optional<Address> ParseFileUrl(const std::string& url);

/// True for "http://" and "https://".
bool IsWebUrl(const std::string& url);

/// Scheme, host and port of a URL; "" when it is not valid.
std::string SiteOf(const std::string& url);

}  // namespace viewer

#endif  // VIEWER_WEB_ADDRESS_H_
