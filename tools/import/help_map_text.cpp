#include "tools/import/help_map_text.h"

#include <unordered_map>

#include "resolve/help_map/help_map.h"
#include "resolve/page_id.h"
#include "tools/page_key.h"
#include "tools/printable.h"

namespace velmohelp::tool {
namespace {

/// A map has no way to write a tab or a line end inside a field.
bool FitsField(const std::string& text) {
  return !text.empty() && text.find_first_of("\t\r\n") == std::string::npos;
}

class Writer {
 public:
  explicit Writer(const HelpMapOptions& options) : options_(options) {}

  void WriteHome() {
    if (!FitsField(options_.home)) {
      throw ImportError("the home page's name is empty or has a tab in it");
    }
    Append(kHomePageKey, options_.prefix + options_.home);
  }

  void Write(const IdRow& row) {
    if (IsUrl(row.id)) {
      return Remark(row, "is a URL, which no map is asked for");
    }
    const std::string key = PageKey(row.id);
    const std::string page = PageOf(row.target);
    if (!FitsField(key) || !FitsField(page)) {
      return Remark(row, "is empty or has a tab or line end in it");
    }
    if (const auto other = pages_.find(key); other != pages_.end()) {
      return Collide(row, key, other->second, page);
    }
    if (key != row.id) result_.remarks.push_back(Renamed(row, key));
    Append(key, page);
  }

  HelpMapText Finish() { return std::move(result_); }

 private:
  std::string PageOf(const std::string& target) const {
    return IsUrl(target) ? target : options_.prefix + target;
  }

  static tool::Remark Renamed(const IdRow& row, const std::string& key) {
    return {row.line, Quoted(row.id) + " is looked up as " + Quoted(key), true};
  }

  void Remark(const IdRow& row, const std::string& why) {
    result_.remarks.push_back(
        {row.line, Quoted(row.id) + " " + why + "; left out"});
  }

  /// Two ids of one page are the same entry, and no collision.
  void Collide(const IdRow& row, const std::string& key,
               const std::string& first, const std::string& second) {
    if (first == second) return;
    const std::string why = "has the key " + Quoted(key) + ", which leads to " +
                            Quoted(first) + " already, not to " +
                            Quoted(second);
    if (options_.on_collision == OnCollision::kError) {
      throw ImportError("line " + std::to_string(row.line) + ": " +
                        Quoted(row.id) + " " + why);
    }
    Remark(row, why);
  }

  void Append(const std::string& key, const std::string& page) {
    pages_.emplace(key, page);
    result_.text += key + "\t" + page + "\n";
    ++result_.entries;
  }

  const HelpMapOptions& options_;
  std::unordered_map<std::string, std::string> pages_;
  HelpMapText result_;
};

}  // namespace

HelpMapText WriteHelpMap(const IdTable& table, const HelpMapOptions& options) {
  Writer writer(options);
  writer.WriteHome();
  for (const IdRow& row : table.rows) writer.Write(row);
  return writer.Finish();
}

}  // namespace velmohelp::tool
