// From a page id to the page: normalisation, help maps, validation, search
// page. Strings are byte strings; no character set is assumed.
// After the end of the state (velmohelp.h, convention 8) ValidateID returns 3,
// GetSearchPage and ValidateURL false; what they would write is untouched.
#ifndef VELMOHELP_RESOLVE_H_
#define VELMOHELP_RESOLVE_H_

#include <velmohelp/export.h>

#include <deque>
#include <fstream>
#include <map>
#include <string>

/// True when text begins with "http://", "https://" or "file://", in lower
/// case.
VELMOHELP_API bool isUrl(std::string text);

/// True when name ends with ".html" or ".htm", in lower case.
VELMOHELP_API bool isHTMLPage(std::string name);

/// Makes a bare page id the name of an HTML file: every byte except ASCII
/// letters, digits, "_", "-" and "." becomes "_", and ".html" is appended. URLs
/// and names of HTML files are not changed.
VELMOHELP_API void NormalizePageID(std::string& id);

/// Finds the target of a normalised page id in the client's content folders:
/// downloaded before installed, then in table order. A page that a folder's
/// help map names is not checked. A URL that it names is: by a fetch when the
/// client's state is online, else as a path, at which there is nothing. A
/// folder with a help map has no other pages. All fetches together take 20
/// seconds at most; further pages count as missing.
///
/// online chooses between URLs below the base URL (true) and local paths.
/// Returns 0 with the target in out (a path or a URL), or 3 with the page id
/// in out. Leaves the help map that was read last in sHelpMap. Throws
/// std::ios_base::failure when a help map cannot be read to its end.
VELMOHELP_API unsigned char ValidateID(std::string pageId, bool online,
                                       std::string& out);

/// Finds "search.html" in the client's content folders. False, with page
/// emptied, when there is none. locale and paths are ignored: the rows that are
/// searched are always the client's own.
VELMOHELP_API bool GetSearchPage(std::string& page, std::string locale,
                                 std::string paths[][2]);

namespace ITEMInternal {

/// The same as ::isUrl.
VELMOHELP_API bool isUrl(std::string text);

/// fetch false: something exists at the path target. fetch true: target is a
/// URI, and the whole resource could be loaded from it and is text. Blocks
/// until it is loaded, 10 seconds at most.
VELMOHELP_API bool ValidateURL(std::string target, bool fetch);

/// Reads a help map: one entry per line, key and value separated by tabs. The
/// first entry of a key wins; lines without two fields are skipped. Empties map
/// first. True when the file was read and map has "VX_HOME"; false with the
/// entries in map when it has not, and with an empty map when path names
/// nothing, a pipe, a device, a file that may not be read or one longer than
/// 256 MiB. Quotes and backslashes are ordinary characters. Throws
/// std::ios_base::failure on a read error, with the entries of the lines before
/// it in map; every read of a directory is one.
VELMOHELP_API bool LoadMapFile(const std::string& path,
                               std::map<std::string, std::string>& map);

/// The first line of a base URL file; "" when path names nothing, a pipe, a
/// device, a file that may not be read or one longer than 16 MiB. In a line
/// with
/// "://[" (an IPv6 host, whose zone follows a "%") the first "%", wherever it
/// is, becomes "%25", unless there is a "%25" before the first "]". Throws
/// std::out_of_range for a line with "://[" but neither "]" nor "%", and
/// std::ios_base::failure as LoadMapFile does.
VELMOHELP_API std::string GetHelpMapBaseUrl(const std::string& path);

/// AppendToPath of folder and "helpmap.txt" or "helpmapBaseUrl.txt".
VELMOHELP_API std::string GetHelpMapPath(const std::string& folder);
VELMOHELP_API std::string GetHelpMapBaseUrlPath(const std::string& folder);

/// Reads a line that ends with LF, CR or CR LF into line, without its end.
/// False, with line emptied, at the end of the input; a good stream stays good
/// even then. For a stream that is not good it returns true, leaves line
/// unchanged and sets the stream's fail flag.
VELMOHELP_API bool GetLine(std::ifstream& stream, std::string& line);

/// Splits text at runs of delimiter and appends the fields to out; returns how
/// many. A text without a delimiter after its first field is one field, with
/// its leading and trailing delimiters; an empty text has no field.
VELMOHELP_API int DelimitedStringToDeque(const char& delimiter,
                                         const std::string& text,
                                         std::deque<std::string>& out);

}  // namespace ITEMInternal

#endif  // VELMOHELP_RESOLVE_H_
