#include "tools/check/check_map.h"

#include "resolve/page_id.h"
#include "tools/check/rules.h"
#include "tools/page_key.h"
#include "tools/printable.h"
#include "util/uri.h"

namespace velmohelp::tool {
namespace {

class Check {
 public:
  Check(const MapFile& map, Findings& findings)
      : map_(map), findings_(findings) {}

  void Run() {
    if (!map_.HasHome()) {
      Add(rules::kNoHome, {},
          "there is no entry VX_HOME; the client takes nothing from this map");
    }
    for (const std::size_t line : map_.skipped()) {
      Add(rules::kSkippedLine, {line, 1},
          "the client skips this line: it has no tab between two fields");
    }
    for (const MapLine& line : map_.lines()) {
      if (CheckFirst(line)) CheckKey(line);
      CheckUrl(line);
    }
  }

 private:
  void Add(const Rule& rule, Position at, std::string text) {
    findings_.push_back({&rule, map_.path().string(), at, std::move(text)});
  }

  /// False for a line whose key an earlier one has.
  bool CheckFirst(const MapLine& line) {
    const MapLine& first = *map_.Find(line.key);
    if (&first == &line) return true;
    const bool same = first.value == line.value;
    Add(same ? rules::kRepeatedEntry : rules::kDuplicateKey,
        line.PositionOf(line.key),
        Quoted(line.key) + " is on line " + std::to_string(first.number) +
            (same
                 ? " already"
                 : " already, with " + Quoted(first.value) + ", which counts"));
    return false;
  }

  void CheckKey(const MapLine& line) {
    const std::string id(line.key);
    if (IsUrl(id)) {
      return Add(rules::kUnreachableKey, line.PositionOf(line.key),
                 Quoted(id) + " is a URL; the client looks none up");
    }
    const std::string key = PageKey(id);
    if (key == id) return;
    const auto [other, is_new] = written_otherwise_.emplace(key, line.key);
    if (map_.Find(key) != nullptr) {
      AddCollision(line, key, key);
    } else if (!is_new) {
      AddCollision(line, key, other->second);
    } else {
      Add(rules::kUnreachableKey, line.PositionOf(line.key),
          "the id " + Quoted(id) + " is looked up as " + Quoted(key) +
              "; only the id " + Quoted(id + ".html") + " has this key");
    }
  }

  void AddCollision(const MapLine& line, const std::string& key,
                    std::string_view other) {
    Add(rules::kCollidingIds, line.PositionOf(line.key),
        "the ids " + Quoted(line.key) + " and " + Quoted(other) +
            " have the same key, " + Quoted(key));
  }

  void CheckUrl(const MapLine& line) {
    const std::string_view value = line.value;
    if (IsUrl(value)) {
      const bool has_host =
          value.starts_with("file:") || !HostOfUri(value).value_or("").empty();
      if (IsUri(value) && has_host) return;
      Add(rules::kNotAUrl, line.PositionOf(value),
          Quoted(value) + " is not a valid URL; the client finds no page");
    } else if (value.substr(0, value.find('#')).find("://") !=
                   std::string_view::npos ||
               value.starts_with("mailto:") || value.starts_with("www.")) {
      Add(rules::kNotAUrl, line.PositionOf(value),
          Quoted(value) +
              " counts as the name of a page: URLs begin with "
              "http://, https:// or file://");
    }
  }

  const MapFile& map_;
  Findings& findings_;
  /// Keys as the client looks them up, of ids that are written otherwise.
  std::unordered_map<std::string, std::string_view> written_otherwise_;
};

}  // namespace

void CheckMap(const MapFile& map, Findings& findings) {
  Check(map, findings).Run();
}

}  // namespace velmohelp::tool
