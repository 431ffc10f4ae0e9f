#include <ios>

#include "platform/open_file.h"
#include "resolve/help_map/builder.h"
#include "resolve/help_map/entry_parser.h"
#include "resolve/help_map/help_map.h"

namespace velmohelp {
namespace {

void BuildFromFile(const std::string& path, HelpMap& map) {
  HelpMapBuilder builder(map);
  const auto file = OpenInputFile(path, kHelpMapLimit);
  if (file) builder.AddFile(*file);
}

}  // namespace

bool LoadHelpMap(const std::string& path, HelpMap& map) {
  BuildFromFile(path, map);
  return map.contains(kHomePageKey);
}

bool LazyHelpMap::Read(const std::string& path) {
  text_.Clear();
  was_read_ = true;
  const auto file = OpenInputFile(path, kHelpMapLimit);
  if (!file) return false;
  try {
    text_.AppendRest(*file);
  } catch (const std::ios_base::failure&) {
    text_.KeepFirst(LinesBeforeError(text_.bytes()).size());
    throw;
  }
  return true;
}

/// Looks for the home page last: most maps of a search do not have the key.
std::optional<std::string_view> LazyHelpMap::Find(std::string_view key) const {
  const auto value = FindEntry(text_.bytes(), key);
  if (!value || !FindEntry(text_.bytes(), kHomePageKey)) return std::nullopt;
  return value;
}

void LazyHelpMap::Build() {
  if (was_read_) BuildHelpMap(text_.bytes(), map_);
}

}  // namespace velmohelp
