// Plain text search for keys and their quoted values, over bytes.
#ifndef CONFIG_KEY_SCANNER_H_
#define CONFIG_KEY_SCANNER_H_

#include <string>
#include <string_view>

namespace velmohelp {

/// The text between the first two quotes after the first "=" after the first
/// occurrence of key in text; "" where one of these is missing. Never returns
/// when the closing quote has a backslash before it.
std::string_view ScanKey(std::string_view text, std::string_view key);

/// See XMLParser::PopulatePathArray.
void ScanPathTable(std::string_view text, std::string (*table)[2], int& count);

}  // namespace velmohelp

#endif  // CONFIG_KEY_SCANNER_H_
