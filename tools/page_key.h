// The key under which the client looks a page id up.
#ifndef TOOLS_PAGE_KEY_H_
#define TOOLS_PAGE_KEY_H_

#include <string>

namespace velmohelp::tool {

/// For a page id that is not a URL: what a help map must have as key, so that
/// the client finds the id's page.
std::string PageKey(const std::string& page_id);

}  // namespace velmohelp::tool

#endif  // TOOLS_PAGE_KEY_H_
