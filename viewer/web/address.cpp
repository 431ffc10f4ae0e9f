#include "viewer/web/address.h"

#include <glib.h>

#include <memory>

#include "viewer/gobject_ptr.h"

namespace viewer {
namespace {

struct UriUnref {
  void operator()(GUri* uri) const { g_uri_unref(uri); }
};
using UriPtr = std::unique_ptr<GUri, UriUnref>;

// Characters of a path that need no escape, "/" included.
constexpr char kPathCharacters[] = "/!$&'()*+,;=:@";

UriPtr Parse(const std::string& uri) {
  return UriPtr(g_uri_parse(uri.c_str(), G_URI_FLAGS_ENCODED, nullptr));
}

// Nothing for escapes that are not valid or hide a NUL or a "/".
std::optional<std::string> DecodedPath(GUri* uri) {
  const TextPtr path(g_uri_unescape_string(g_uri_get_path(uri), "/"));
  if (!path || *path != '/') return std::nullopt;
  return path.get();
}

std::optional<Address> FromUri(GUri* uri) {
  auto path = DecodedPath(uri);
  if (!path) return std::nullopt;
  return Address{.place = Copy(g_uri_get_host(uri)),
                 .path = std::move(*path),
                 .query = Copy(g_uri_get_query(uri)),
                 .fragment = Copy(g_uri_get_fragment(uri))};
}

bool HasScheme(const UriPtr& uri, const char* scheme) {
  return uri && g_str_equal(g_uri_get_scheme(uri.get()), scheme);
}

}  // namespace

std::string Address::Document() const {
  return std::string(kLocalScheme) + "://" + place + "/" +
         Adopt(g_uri_escape_string(path.c_str(), kPathCharacters, false));
}

std::string Address::Uri() const {
  std::string uri = Document();
  if (!query.empty()) uri += "?" + query;
  if (!fragment.empty()) uri += "#" + fragment;
  return uri;
}

std::optional<Address> ParseAddress(const std::string& uri) {
  const UriPtr parsed = Parse(uri);
  if (!HasScheme(parsed, kLocalScheme)) return std::nullopt;
  auto address = FromUri(parsed.get());
  if (!address || address->place.empty()) return std::nullopt;
  address->path.erase(0, 1);
  return address;
}

std::optional<Address> ParseFileUrl(const std::string& url) {
  const UriPtr parsed = Parse(url);
  if (!HasScheme(parsed, "file")) return std::nullopt;
  auto address = FromUri(parsed.get());
  if (!address) return std::nullopt;
  if (!address->place.empty() && address->place != "localhost") {
    return std::nullopt;
  }
  address->place.clear();
  return address;
}

bool IsWebUrl(const std::string& url) {
  return url.starts_with("http://") || url.starts_with("https://");
}

std::string SiteOf(const std::string& url) {
  const UriPtr uri = Parse(url);
  if (!uri) return {};
  return Copy(g_uri_get_scheme(uri.get())) + "://" +
         Copy(g_uri_get_host(uri.get())) + ":" +
         std::to_string(g_uri_get_port(uri.get()));
}

}  // namespace viewer
