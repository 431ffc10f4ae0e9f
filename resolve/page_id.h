// Page ids: telling URLs and page names apart, and making file names of ids.
#ifndef RESOLVE_PAGE_ID_H_
#define RESOLVE_PAGE_ID_H_

#include <string>
#include <string_view>

namespace velmohelp {

/// text begins with "http://", "https://" or "file://", in lower case.
bool IsUrl(std::string_view text);

/// name ends with ".html" or ".htm", in lower case.
bool IsHtmlPage(std::string_view name);

/// Makes a bare page id the name of an HTML file: every byte except ASCII
/// letters, digits, "_", "-" and "." becomes "_", and ".html" is appended. URLs
/// and names of HTML files stay as they are.
void NormalizePageId(std::string& id);

/// The key of a normalised page id in a help map: the id without the ".html"
/// that normalisation appended. Five bytes are cut whatever they are.
std::string_view HelpMapKey(std::string_view page_id);

}  // namespace velmohelp

#endif  // RESOLVE_PAGE_ID_H_
