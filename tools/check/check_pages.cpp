#include "tools/check/check_pages.h"

#include <unordered_set>

#include "resolve/page_id.h"
#include "tools/check/content.h"
#include "tools/check/html_page.h"
#include "tools/check/rules.h"
#include "tools/files.h"
#include "tools/printable.h"
#include "util/uri.h"

namespace velmohelp::tool {
namespace {

namespace fs = std::filesystem;

/// A search in the browser opens it; no entry has to.
constexpr char kSearchPage[] = "search.html";

/// The entries that lead to one page.
struct Target {
  std::string_view page;
  const MapLine* first;
  /// The entries whose anchors differ.
  std::vector<const MapLine*> with_anchor;
};

std::string_view PageOf(std::string_view value) {
  return value.substr(0, value.find('#'));
}

/// With its "#".
std::string_view AnchorOf(std::string_view value) {
  return value.substr(PageOf(value).size());
}

class Check {
 public:
  Check(const MapFile& map, Progress& progress, Findings& findings)
      : map_(map),
        progress_(progress),
        findings_(findings),
        folder_(map.folder().empty() ? "." : map.folder()),
        listed_(ListPages(folder_)),
        pages_(listed_.begin(), listed_.end()) {}

  void Run() {
    CollectTargets();
    std::size_t done = 0;
    for (const Target& target : targets_) {
      CheckTarget(target);
      progress_.Show(++done, targets_.size());
    }
    for (const std::string& page : listed_) {
      if (reached_.contains(page) || page == kSearchPage) continue;
      AddToPage(rules::kUnreachedPage, page,
                "no entry of the help map leads to this page");
    }
  }

 private:
  void CollectTargets() {
    std::unordered_map<std::string_view, std::size_t> index;
    std::unordered_set<std::string_view> values;
    for (const MapLine& line : map_.lines()) {
      if (&line != map_.Find(line.key) || IsUrl(line.value)) continue;
      if (!values.insert(line.value).second) continue;
      const std::string_view page = PageOf(line.value);
      const auto [at, is_new] = index.emplace(page, targets_.size());
      if (is_new) targets_.push_back({page, &line, {}});
      if (AnchorOf(line.value).size() > 1) {
        targets_[at->second].with_anchor.push_back(&line);
      }
    }
  }

  /// The name of the file that a browser opens for a page: a query is not part
  /// of it, and escapes stand for bytes. "" when there is none.
  std::string FileOf(std::string_view page) const {
    const std::string_view no_query = page.substr(0, page.find('?'));
    for (const std::string& name :
         {std::string(page), std::string(no_query), Unescaped(no_query)}) {
      std::error_code error;
      if (pages_.contains(name) ||
          fs::is_regular_file(folder_.string() + "/" + name, error)) {
        return name;
      }
    }
    return "";
  }

  void CheckTarget(const Target& target) {
    const std::string file = FileOf(target.page);
    if (file.empty()) {
      return AddToLine(rules::kMissingPage, *target.first, target.first->value,
                       "there is no page " + Quoted(target.page));
    }
    reached_.insert(fs::path(file).lexically_normal().string());
    if (IsHtmlPage(file)) CheckFile(target, file);
  }

  void CheckFile(const Target& target, const std::string& file) {
    std::string html;
    try {
      html = ReadWholeFile(folder_.string() + "/" + file);
    } catch (const FileError& error) {
      return AddToPage(rules::kUnreadable, file, Printable(error.what()));
    }
    const auto page = ParseHtmlPage(html);
    if (!page) {
      return AddToPage(rules::kUncheckedPage, file,
                       "too large or too deeply nested to be checked");
    }
    if (page->title.empty()) {
      AddToPage(rules::kNoTitle, file, "the page has no title");
    }
    for (const MapLine* line : target.with_anchor) CheckAnchor(*page, *line);
  }

  void CheckAnchor(const HtmlPage& page, const MapLine& line) {
    const std::string_view with_sign = AnchorOf(line.value);
    const std::string anchor(with_sign.substr(1));
    if (page.anchors.contains(anchor) ||
        page.anchors.contains(Unescaped(anchor))) {
      return;
    }
    AddToLine(rules::kMissingAnchor, line, with_sign,
              "the page " + Quoted(PageOf(line.value)) + " has no anchor " +
                  Quoted(anchor));
  }

  void AddToLine(const Rule& rule, const MapLine& line, std::string_view part,
                 std::string text) {
    findings_.push_back(
        {&rule, map_.path().string(), line.PositionOf(part), std::move(text)});
  }

  void AddToPage(const Rule& rule, const std::string& page, std::string text) {
    findings_.push_back(
        {&rule, (map_.folder() / page).string(), {}, std::move(text)});
  }

  const MapFile& map_;
  Progress& progress_;
  Findings& findings_;
  fs::path folder_;
  std::vector<std::string> listed_;
  std::unordered_set<std::string_view> pages_;
  std::vector<Target> targets_;
  std::unordered_set<std::string> reached_;
};

}  // namespace

void CheckPages(const MapFile& map, Progress& progress, Findings& findings) {
  Check(map, progress, findings).Run();
}

}  // namespace velmohelp::tool
