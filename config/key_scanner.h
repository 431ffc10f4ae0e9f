// Plain text search for keys and their quoted values, over bytes. The files
// look like XML, but elements, entities and comments mean nothing here.
#ifndef CONFIG_KEY_SCANNER_H_
#define CONFIG_KEY_SCANNER_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace velmohelp {

/// The text between the first two double quotes after the first "=" after the
/// first occurrence of key in text; "" when one of these is missing. Never
/// returns when the closing quote follows a backslash.
std::string_view ScanKey(std::string_view text, std::string_view key);

/// ScanKey for the owner of a file: the values of the settings "accessibleMode"
/// and "localHelp" come in upper case.
std::string ScanValue(std::string_view text, std::string_view key);

/// Content folder, and its "contextSensitivity" value in upper case.
using ContentFolderRow = std::string[2];

/// Fills rows with the content folders of text. count: the rows available on
/// entry, the flags found on return; unchanged, like the rows, when the text
/// has no "path". See XMLParser::PopulatePathArray.
void ScanContentFolders(std::string_view text, ContentFolderRow* rows,
                        std::int32_t& count);

/// text with each byte passed through toupper() of the C library, and so of
/// the locale that the host has set.
std::string ToUpper(std::string_view text);

}  // namespace velmohelp

#endif  // CONFIG_KEY_SCANNER_H_
