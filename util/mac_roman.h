// The Mac OS Roman character set, in which preference domains are named.
#ifndef UTIL_MAC_ROMAN_H_
#define UTIL_MAC_ROMAN_H_

#include <optional>
#include <string>
#include <string_view>

namespace velmohelp {

/// Every byte stands for a character.
std::string MacRomanToUtf8(std::string_view bytes);

/// nullopt when the text has a character that is not in the set. text: valid
/// UTF-8.
std::optional<std::string> Utf8ToMacRoman(std::string_view text);

}  // namespace velmohelp

#endif  // UTIL_MAC_ROMAN_H_
