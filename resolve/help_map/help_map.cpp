#include "resolve/help_map/help_map.h"

#include <velmohelp/resolve.h>
#include <velmohelp/text.h>

#include <ios>

#include "platform/open_file.h"
#include "resolve/help_map/builder.h"
#include "resolve/help_map/entry_parser.h"

namespace velmohelp {
namespace {

void Load(const std::string& path, HelpMap& map) {
  HelpMapFiller filler(map);
  const auto file = OpenInputFile(path, kHelpMapLimit);
  if (file) filler.PutFile(*file);
}

}  // namespace

void FillHelpMap(std::string_view text, HelpMap& map) {
  HelpMapFiller(map).Put(text);
}

bool HelpMapsRead::Read(const std::string& path) {
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

/// The home page is looked for behind the key: most maps of a search do not
/// have the key.
std::optional<std::string_view> HelpMapsRead::Find(std::string_view key) const {
  const auto value = FindEntry(text_.bytes(), key);
  if (!value || !FindEntry(text_.bytes(), kHomePageKey)) return std::nullopt;
  return value;
}

void HelpMapsRead::Keep() {
  if (was_read_) FillHelpMap(text_.bytes(), last_);
}

}  // namespace velmohelp

bool ITEMInternal::LoadMapFile(const std::string& path,
                               velmohelp::HelpMap& map) {
  velmohelp::Load(path, map);
  return map.contains(velmohelp::kHomePageKey);
}

std::string ITEMInternal::GetHelpMapPath(const std::string& folder) {
  return AppendToPath(folder, velmohelp::kHelpMapName);
}

std::string ITEMInternal::GetHelpMapBaseUrlPath(const std::string& folder) {
  return AppendToPath(folder, velmohelp::kHelpMapBaseUrlName);
}
