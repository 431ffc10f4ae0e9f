// Plain text search for keys and their quoted values, over bytes. The files
// look like XML, but elements, entities and comments mean nothing here.
#ifndef CONFIG_KEY_SCANNER_H_
#define CONFIG_KEY_SCANNER_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/observer.h"

namespace velmohelp {

/// Where ScanKey looks: positions in the text, npos for what is missing and
/// for all that would follow it.
struct KeyPlace {
  std::size_t key = std::string_view::npos;
  std::size_t opening = std::string_view::npos;
  std::size_t closing = std::string_view::npos;
};

/// Always returns. ScanKey does not when closing follows a backslash.
KeyPlace LocateKey(std::string_view text, std::string_view key);

/// The text between the first two double quotes after the first "=" after the
/// first occurrence of key in text; "" when one of these is missing. Never
/// returns when the closing quote follows a backslash.
std::string_view ScanKey(std::string_view text, std::string_view key,
                         RequestObserver* observer = nullptr);

/// ScanKey for the owner of a file: the values of the settings "accessibleMode"
/// and "localHelp" come in upper case.
std::string ScanValue(std::string_view text, std::string_view key,
                      RequestObserver* observer = nullptr);

/// Content folder, and its "contextSensitivity" value in upper case.
using ContentFolderRow = std::string[2];

/// Fills rows with the content folders of text. count: the rows available on
/// entry, the flags found on return; unchanged, like the rows, when the text
/// has no "path". See XMLParser::PopulatePathArray.
void ScanContentFolders(std::string_view text, ContentFolderRow* rows,
                        std::int32_t& count);

/// A content folder's key: its position, and its value, which is nullopt
/// without a closing quote.
struct FolderKey {
  std::size_t key;
  std::optional<std::string_view> value;
};

/// The keys whose values ScanContentFolders takes for folders, and those that
/// it takes for flags, with that many rows. The last one may lack a closing
/// quote: the scan ends there.
std::vector<FolderKey> LocateFolders(std::string_view text, std::size_t rows);
std::vector<FolderKey> LocateFlags(std::string_view text, std::size_t rows);

/// text with each byte passed through toupper() of the C library, and so of
/// the locale that the host has set.
std::string ToUpper(std::string_view text);

}  // namespace velmohelp

#endif  // CONFIG_KEY_SCANNER_H_
