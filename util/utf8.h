// UTF-8 as RFC 3629 defines it: without surrogates.
#ifndef UTIL_UTF8_H_
#define UTIL_UTF8_H_

#include <cstddef>
#include <string_view>

namespace velmohelp {

/// Whether text is valid UTF-8. Zero bytes are valid.
bool IsUtf8(std::string_view text);

/// How many UTF-16 units the text takes. text: valid UTF-8.
std::size_t Utf16Length(std::string_view text);

}  // namespace velmohelp

#endif  // UTIL_UTF8_H_
