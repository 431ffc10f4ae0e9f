#include "resolve/search_page.h"

#include "platform/files.h"
#include "resolve/url_check.h"
#include "util/str_cat.h"

namespace velmohelp {

std::optional<std::string> FindSearchPage(Machine& machine, FetchBudget& budget,
                                          const HelpContent& content) {
  std::string page;
  const auto accept = [&](const std::string& root, const std::string& name) {
    page = StrCat({root, name, "/search.html"});
    const bool accepted = content.is_online ? CanLoadText(machine, budget, page)
                                            : FileExists(machine, page);
    if (content.observer != nullptr) {
      content.observer->OnContentFolder(root + name, accepted, page);
    }
    return accepted;
  };
  const bool found = content.is_online
                         ? AnyFolder(content,
                                     [&](const std::string& name) {
                                       return accept(content.base_url, name);
                                     })
                         : AnyLocalFolder(machine, content, accept);
  if (!found) return std::nullopt;
  return page;
}

}  // namespace velmohelp
