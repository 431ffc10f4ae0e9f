#include "resolve/content_folders.h"

#include <algorithm>
#include <span>

#include "platform/folders.h"

namespace velmohelp {

bool AnyFolder(const HelpContent& content,
               const std::function<bool(const std::string& name)>& accept) {
  return std::ranges::any_of(
      std::span(content.rows, content.row_count), [&](const auto& row) {
        return row[1] == kContextSensitive && accept(row[0]);
      });
}

bool AnyLocalFolder(
    Machine& machine, const HelpContent& content,
    const std::function<bool(const std::string& root, const std::string& name)>&
        accept) {
  const auto any_below = [&](const std::string& root) {
    return AnyFolder(
        content, [&](const std::string& name) { return accept(root, name); });
  };
  return any_below(BelowPreferences(machine, content.downloaded_suffix)) ||
         any_below(InstalledContentPath() + "/");
}

}  // namespace velmohelp
