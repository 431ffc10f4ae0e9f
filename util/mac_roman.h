// The Mac OS Roman character set, in which preference domains are named.
#ifndef UTIL_MAC_ROMAN_H_
#define UTIL_MAC_ROMAN_H_

#include <optional>
#include <string>
#include <string_view>

namespace velmohelp {

/// Every byte is a character.
std::string MacRomanToUtf8(std::string_view bytes);

/// text: valid UTF-8. nullopt when it has a character that is not in the set.
std::optional<std::string> Utf8ToMacRoman(std::string_view text);

}  // namespace velmohelp

#endif  // UTIL_MAC_ROMAN_H_
