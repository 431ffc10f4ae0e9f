// The generic URI syntax (RFC 3986), as far as the client needs it.
#ifndef UTIL_URI_H_
#define UTIL_URI_H_

#include <optional>
#include <string>
#include <string_view>

#include "util/ascii.h"

namespace velmohelp {

/// A reserved or unreserved character: one that is legal in a URI unescaped.
constexpr bool IsUriCharacter(char byte) {
  constexpr std::string_view kMarks = "-._~:/?#[]@!$&'()*+,;=";
  return IsAsciiAlnum(byte) || kMarks.find(byte) != std::string_view::npos;
}

/// text begins with "%" and two hexadecimal digits.
bool IsPercentEscape(std::string_view text);

/// text is not empty and consists of URI characters and percent escapes only.
bool IsUri(std::string_view text);

/// The text up to its first zero byte, where platform calls see its end;
/// nullopt when that is not a URI.
std::optional<std::string> UriOf(std::string_view text);

/// Whether a URI has a path that can be one in a file system. In "mailto:x" the
/// scheme is not followed by "/"; in "1:x" a colon precedes the first "/"
/// though "1" is not a scheme.
bool IsHierarchical(std::string_view uri);

/// The path of a URI, still escaped.
std::string_view PathOfUri(std::string_view uri);

/// text with each percent escape replaced by its byte.
std::string Unescaped(std::string_view text);

/// The host of a URI, unescaped, without user, port and the brackets of an IP
/// literal; nullopt when the URI has no host.
std::optional<std::string> HostOfUri(std::string_view uri);

}  // namespace velmohelp

#endif  // UTIL_URI_H_
