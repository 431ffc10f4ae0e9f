// What a file's bytes are, before the web engine gets them.
#ifndef VIEWER_WEB_PAGE_BYTES_H_
#define VIEWER_WEB_PAGE_BYTES_H_

#include <string>
#include <string_view>

namespace viewer {

/// The media type by the name's extension; "" when it is none of help's.
std::string MediaType(std::string_view name);

/// True for the names of HTML pages.
bool IsPageName(std::string_view name);

enum class PageProblem { kNone, kBinary, kEncoding };

/// Turns a page into UTF-8 by its byte order mark or the character set that it
/// declares. On a problem text is left as it was.
PageProblem MakeUtf8(std::string& text);

/// The character set that a page declares in its first 1024 bytes; "" when it
/// declares none.
std::string DeclaredCharset(std::string_view page);

}  // namespace viewer

#endif  // VIEWER_WEB_PAGE_BYTES_H_
