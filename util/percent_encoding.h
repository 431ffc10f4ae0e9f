// Percent-encoding of bytes, search terms and URIs.
#ifndef UTIL_PERCENT_ENCODING_H_
#define UTIL_PERCENT_ENCODING_H_

#include <string>
#include <string_view>

namespace velmohelp {

/// The two lower-case hexadecimal digits of a byte.
std::string LowerHexDigits(char byte);

/// "%" and the two upper-case hexadecimal digits of a byte.
std::string EscapeByte(char byte);

/// Escapes every byte of a search term that search pages expect escaped (see
/// StaysInSearchTerm), in lower-case digits. "" for a text of 2 GiB or more.
std::string EncodeSearchTerm(std::string_view text);

/// Escapes the bytes that are not legal in a URI, in upper-case digits. A
/// percent escape stays as it is: a URL that was escaped before must not be
/// escaped twice.
std::string EscapeForUri(std::string_view text);

/// EscapeForUri of the text up to its first zero byte; "" when that is not
/// valid UTF-8 or the result does not fit the text buffer.
std::string EncodeUriComponent(std::string_view text);

}  // namespace velmohelp

#endif  // UTIL_PERCENT_ENCODING_H_
