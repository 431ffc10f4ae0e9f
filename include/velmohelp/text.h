// Paths, percent-encoding and quotes. Strings are byte strings with UTF-8 text.
#ifndef VELMOHELP_TEXT_H_
#define VELMOHELP_TEXT_H_

#include <velmohelp/export.h>

#include <string>

/// Joins two path components with a "/" between them unless base ends with one,
/// even when one of them is empty ("" and "x" give "/x"). The name is spelled
/// this way.
VELMOHELP_API std::string AppentPath(std::string base, std::string leaf);

/// Percent-encodes a search term: every byte but ASCII letters, digits and
/// ' ( ) * ! ~ becomes "%" and two lower-case hexadecimal digits; "-", "_" and
/// "." too. "" for a text of 2 GiB or more.
VELMOHELP_API std::string urlencode(const std::string& text);

/// The two lower-case hexadecimal digits of a byte.
VELMOHELP_API std::string char2hex(char byte);

/// Removes one leading and one trailing double quote, if there is one.
VELMOHELP_API std::string StripDoubleQuotes(std::string text);

namespace ITEMInternal {

/// Percent-encodes the characters that are not legal in a URL (RFC 3986: all
/// but the reserved and the unreserved), byte by byte of their UTF-8 form, with
/// upper-case digits. A "%" before two hexadecimal digits is not changed; any
/// other becomes "%25". "" for a text that is not valid UTF-8 and for a result
/// of more than 1023 bytes. text ends at its first zero byte.
VELMOHELP_API std::string VelmoHelpEncodeURIComponent(const std::string& text);

/// Joins two path components with a "/" between them unless base ends with one.
/// When one of them is empty, the result is the other.
VELMOHELP_API std::string AppendToPath(const std::string& base,
                                       const std::string& leaf);

}  // namespace ITEMInternal

#endif  // VELMOHELP_TEXT_H_
