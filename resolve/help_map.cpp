#include "resolve/help_map.h"

#include <velmohelp/resolve.h>
#include <velmohelp/text.h>

#include <vector>

#include "resolve/help_map_order.h"
#include "resolve/help_map_text.h"

namespace velmohelp {
namespace {

/// The map's last key does not lie behind key: key can be put at its end.
bool FitsAtEnd(const HelpMap& map, std::string_view key) {
  return map.empty() || map.rbegin()->first <= key;
}

/// A map that is built in the order of its keys touches each node once;
/// searching a large map for the place of each entry costs more than sorting.
void InsertSorted(std::vector<HelpMapEntry> entries, HelpMap& map) {
  SortByKey(entries);
  auto at = map.begin();
  for (const auto& [key, value] : entries) {
    while (at != map.end() && at->first < key) ++at;
    at = map.emplace_hint(at, key, value);
  }
}

}  // namespace

void InsertEntries(std::string_view text, HelpMap& map) {
  std::vector<HelpMapEntry> out_of_order;
  HelpMapReader reader(text);
  HelpMapEntry entry;
  while (reader.Next(entry)) {
    if (out_of_order.empty() && FitsAtEnd(map, entry.key)) {
      map.emplace_hint(map.end(), entry.key, entry.value);
    } else {
      out_of_order.push_back(entry);
    }
  }
  InsertSorted(std::move(out_of_order), map);
}

bool HelpMapsRead::Read(const std::string& path) {
  return ReadHelpMapText(path, text_.emplace());
}

std::optional<std::string_view> HelpMapsRead::Find(std::string_view key) const {
  if (!text_ || !FindEntry(*text_, kHomePageKey)) return std::nullopt;
  return FindEntry(*text_, key);
}

void HelpMapsRead::Keep() {
  if (!text_) return;
  last_.clear();
  InsertEntries(*text_, last_);
}

}  // namespace velmohelp

bool ITEMInternal::LoadMapFile(const std::string& path,
                               velmohelp::HelpMap& map) {
  map.clear();
  velmohelp::HelpMapsRead file(map);
  file.KeepLast([&] { return file.Read(path); });
  return map.contains(velmohelp::kHomePageKey);
}

std::string ITEMInternal::GetHelpMapPath(const std::string& folder) {
  return AppendToPath(folder, velmohelp::kHelpMapName);
}

std::string ITEMInternal::GetHelpMapBaseUrlPath(const std::string& folder) {
  return AppendToPath(folder, velmohelp::kHelpMapBaseUrlName);
}
