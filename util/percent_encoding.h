// Percent-encoding below the exported encoders.
#ifndef UTIL_PERCENT_ENCODING_H_
#define UTIL_PERCENT_ENCODING_H_

#include <string>
#include <string_view>

namespace velmohelp {

/// Escapes what may not stand in a URI, in upper-case digits; a percent escape
/// stays, so that a URL that was escaped before is not escaped twice.
std::string EscapeForUri(std::string_view text);

}  // namespace velmohelp

#endif  // UTIL_PERCENT_ENCODING_H_
