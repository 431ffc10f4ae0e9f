// Percent-encoding and quotes. Strings are byte strings that hold UTF-8.
#ifndef VELMOHELP_TEXT_H_
#define VELMOHELP_TEXT_H_

#include <velmohelp/export.h>

#include <string>

/// Percent-encodes a search term: every byte but ASCII letters, digits and
/// ' ( ) * ! ~ becomes "%" and two lower-case hexadecimal digits; "-", "_" and
/// "." too. "" for a text of 2 GiB and more.
VELMOHELP_API std::string urlencode(const std::string& text);

/// The two lower-case hexadecimal digits of a byte.
VELMOHELP_API std::string char2hex(char byte);

/// Removes one leading and one trailing double quote where there is one.
VELMOHELP_API std::string StripDoubleQuotes(std::string text);

namespace ITEMInternal {

/// Percent-encodes the characters that may not stand in a URL (RFC 3986: all
/// but the reserved and the unreserved), byte by byte of their UTF-8 form, in
/// upper-case digits. A "%" before two hexadecimal digits stays, any other
/// becomes "%25". "" for a text that is no UTF-8 and for a result of more than
/// 1023 bytes. text counts up to its first zero byte.
VELMOHELP_API std::string VelmoHelpEncodeURIComponent(const std::string& text);

}  // namespace ITEMInternal

#endif  // VELMOHELP_TEXT_H_
