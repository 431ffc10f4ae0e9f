#include "tools/explain/near_ids.h"

#include <algorithm>
#include <set>
#include <utility>

#include "resolve/help_map/entry_parser.h"
#include "resolve/help_map/help_map.h"

namespace velmohelp::tool {
namespace {

constexpr std::size_t kMost = 3;
/// A longer key is no typing mistake, and would take long to compare.
constexpr std::size_t kLongestKey = 256;

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool Same(char a, char b) { return Lower(a) == Lower(b); }

/// Short ids are all near each other: few mistakes count as one.
std::size_t LimitFor(std::string_view key) {
  return std::clamp<std::size_t>(key.size() / 3, 1, 4);
}

std::size_t Difference(std::size_t a, std::size_t b) {
  return a > b ? a - b : b - a;
}

/// One row of the table of distances, from the two before it.
struct Rows {
  std::vector<std::size_t> before, last, now;
};

void FillRow(std::string_view a, std::string_view b, std::size_t i,
             Rows& rows) {
  rows.now[0] = i;
  for (std::size_t j = 1; j <= b.size(); ++j) {
    const std::size_t replaced = Same(a[i - 1], b[j - 1]) ? 0 : 1;
    rows.now[j] = std::min(
        {rows.last[j] + 1, rows.now[j - 1] + 1, rows.last[j - 1] + replaced});
    const bool swapped =
        i > 1 && j > 1 && Same(a[i - 1], b[j - 2]) && Same(a[i - 2], b[j - 1]);
    if (swapped) rows.now[j] = std::min(rows.now[j], rows.before[j - 2] + 1);
  }
}

}  // namespace

bool SameButForCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, Same);
}

std::size_t EditDistance(std::string_view a, std::string_view b,
                         std::size_t limit) {
  if (Difference(a.size(), b.size()) > limit) return limit + 1;
  Rows rows;
  rows.before = rows.last = rows.now = std::vector<std::size_t>(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) rows.now[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::swap(rows.before, rows.last);
    std::swap(rows.last, rows.now);
    FillRow(a, b, i, rows);
    if (*std::ranges::min_element(rows.now) > limit) return limit + 1;
  }
  return std::min(rows.now.back(), limit + 1);
}

std::vector<std::string> NearKeys(std::string_view map, std::string_view key) {
  if (key.size() > kLongestKey) return {};
  const std::size_t limit = LimitFor(key);
  std::set<std::pair<std::size_t, std::string_view>> best;
  HelpMapParser parser(map);
  for (HelpMapEntry entry; parser.Next(entry);) {
    if (entry.key == key || entry.key == kHomePageKey) continue;
    const std::size_t distance = EditDistance(entry.key, key, limit);
    if (distance > limit) continue;
    best.emplace(distance, entry.key);
    if (best.size() > kMost) best.erase(std::prev(best.end()));
  }
  std::vector<std::string> keys;
  keys.reserve(best.size());
  for (const auto& [distance, near] : best) keys.emplace_back(near);
  return keys;
}

}  // namespace velmohelp::tool
