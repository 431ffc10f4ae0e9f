// The generic URI syntax (RFC 3986), as far as the client needs it.
#ifndef UTIL_URI_H_
#define UTIL_URI_H_

#include <optional>
#include <string>
#include <string_view>

#include "util/ascii.h"

namespace velmohelp {

/// A reserved or unreserved character: one that may stand in a URI as it is.
constexpr bool IsUriCharacter(char byte) {
  constexpr std::string_view kMarks = "-._~:/?#[]@!$&'()*+,;=";
  return IsAsciiAlnum(byte) || kMarks.find(byte) != std::string_view::npos;
}

/// text begins with "%" and two hexadecimal digits.
bool IsPercentEscape(std::string_view text);

/// text is not empty and made of URI characters and percent escapes alone.
bool IsUri(std::string_view text);

/// The URI that text is up to its first zero byte, which is where platform
/// calls see it end; nullopt when that is none.
std::optional<std::string> UriOf(const std::string& text);

/// The path of a URI, as it stands there.
std::string_view PathOfUri(std::string_view uri);

/// text with its percent escapes replaced by the bytes that they stand for.
std::string Unescaped(std::string_view text);

/// The host of a URI, unescaped, without user, port and the brackets of an IP
/// literal; nullopt when it has none.
std::optional<std::string> HostOfUri(std::string_view uri);

}  // namespace velmohelp

#endif  // UTIL_URI_H_
