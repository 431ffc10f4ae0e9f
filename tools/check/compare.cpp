#include "tools/check/compare.h"

#include <algorithm>
#include <map>
#include <set>

#include "resolve/page_id.h"
#include "tools/check/content.h"
#include "tools/check/rules.h"
#include "tools/files.h"
#include "tools/lines.h"
#include "tools/page_key.h"
#include "tools/printable.h"
#include "util/str_cat.h"

namespace velmohelp::tool {
namespace {

namespace fs = std::filesystem;

/// The client takes nothing from a map without a home page.
bool HasKey(const MapFiles& maps, std::string_view key) {
  return std::ranges::any_of(maps, [&](const auto& map) {
    return map->HasHome() && map->Find(key) != nullptr;
  });
}

/// "en_US" or "en-US".
bool IsLocale(const std::string& name) {
  const auto is_lower = [](char c) { return 'a' <= c && c <= 'z'; };
  const auto is_upper = [](char c) { return 'A' <= c && c <= 'Z'; };
  return name.size() == 5 && is_lower(name[0]) && is_lower(name[1]) &&
         (name[2] == '_' || name[2] == '-') && is_upper(name[3]) &&
         is_upper(name[4]);
}

/// The maps that are the same content in several locales, by locale.
using Translations = std::map<std::string, const MapFile*>;

/// By path, with "*" in place of the locale.
std::map<fs::path, Translations> GroupByLocale(const MapFiles& maps) {
  std::map<fs::path, Translations> groups;
  for (const auto& map : maps) {
    fs::path pattern;
    std::string locale;
    for (const fs::path& part : fs::absolute(map->path())) {
      if (IsLocale(part.string())) locale = part.string();
      pattern /= IsLocale(part.string()) ? fs::path("*") : part;
    }
    if (!locale.empty()) groups[pattern].emplace(locale, map.get());
  }
  std::erase_if(groups,
                [](const auto& group) { return group.second.size() < 2; });
  return groups;
}

std::set<std::string> KeysOf(const MapFile& map) {
  std::set<std::string> keys;
  for (const MapLine& line : map.lines()) keys.emplace(line.key);
  return keys;
}

std::set<std::string> PagesOf(const MapFile& map) {
  const auto pages = ListPages(map.folder());
  return {pages.begin(), pages.end()};
}

/// Appends what a locale lacks of the names that another one has.
void CompareNames(const Translations& maps, const std::string& kind,
                  std::set<std::string> (*names_of)(const MapFile& map),
                  Findings& findings) {
  std::map<std::string, std::string> all;  // and the first locale that has it
  std::map<std::string, std::set<std::string>> names;
  for (const auto& [locale, map] : maps) {
    names[locale] = names_of(*map);
    for (const auto& name : names[locale]) all.emplace(name, locale);
  }
  for (const auto& [locale, map] : maps) {
    for (const auto& [name, owner] : all) {
      if (names[locale].contains(name)) continue;
      findings.push_back({&rules::kMissingInLocale,
                          map->path().string(),
                          {},
                          StrCat({locale, " lacks the ", kind, " ",
                                  Quoted(name), ", which ", owner, " has"})});
    }
  }
}

}  // namespace

void CheckIds(const fs::path& ids, const MapFiles& maps, Findings& findings) {
  const std::string text = ReadWholeFile(ids);
  ForEachLine(text, [&](std::string_view line, std::size_t number) {
    const std::string id(line);
    if (id.empty() || IsUrl(id)) return;
    const std::string key = PageKey(id);
    if (HasKey(maps, key)) return;
    findings.push_back({&rules::kUnmappedId,
                        ids.string(),
                        {number, 1},
                        "no help map has the id " + Quoted(id) +
                            ", whose key is " + Quoted(key)});
  });
}

void CheckAgainst(const MapFiles& earlier, const MapFiles& maps,
                  Findings& findings) {
  for (const auto& map : earlier) {
    for (const MapLine& line : map->lines()) {
      if (map->Find(line.key) != &line || HasKey(maps, line.key)) continue;
      findings.push_back(
          {&rules::kVanishedId, map->path().string(), line.PositionOf(line.key),
           "no help map has the id " + Quoted(line.key) + " any more"});
    }
  }
}

void CheckLocales(const MapFiles& maps, Findings& findings) {
  const auto groups = GroupByLocale(maps);
  if (groups.empty()) {
    throw FileError(
        "--locales: no two help maps are in folders that differ in the locale "
        "alone");
  }
  for (const auto& [pattern, translations] : groups) {
    CompareNames(translations, "id", KeysOf, findings);
    CompareNames(translations, "page", PagesOf, findings);
  }
}

}  // namespace velmohelp::tool
