#include "viewer/content/contents_list.h"

#include <charconv>
#include <cstddef>
#include <utility>

#include "viewer/content/html_scanner.h"

namespace viewer {
namespace {

// A page that nests deeper is broken or hostile.
constexpr std::size_t kDeepest = 32;

bool IsList(const std::string& name) {
  return name == "ul" || name == "ol" || name == "dl";
}
bool IsItem(const std::string& name) {
  return name == "li" || name == "dt" || name == "dd";
}

// Drops what leads nowhere: an entry without a link and without children.
void Prune(std::vector<ContentsEntry>& entries) {
  for (auto& entry : entries) Prune(entry.children);
  std::erase_if(entries, [](const ContentsEntry& entry) {
    return (entry.href.empty() && entry.children.empty()) ||
           entry.title.empty();
  });
}

void Trim(std::string& title) {
  while (title.ends_with(' ')) title.pop_back();
}

// Adds entries below the last one of the level above.
class Tree {
 public:
  void Add(std::size_t depth, ContentsEntry entry) {
    auto* level = &entries_;
    for (; depth > 0 && !level->empty(); --depth) {
      level = &level->back().children;
    }
    level->push_back(std::move(entry));
  }
  std::vector<ContentsEntry> Result() {
    Prune(entries_);
    return std::move(entries_);
  }

 private:
  std::vector<ContentsEntry> entries_;
};

// The title of an entry ends where a list in it begins.
class Reader {
 public:
  void Read(const HtmlToken& token) {
    if (token.kind == HtmlToken::kText) return AddText(token.raw);
    const bool opens = token.kind == HtmlToken::kOpen;
    if (IsList(token.name)) return opens ? OpenList() : CloseList();
    if (IsItem(token.name)) return opens && depth_ > 0 ? Begin() : Flush();
    if (opens && token.name == "a" && in_item_ && entry_.href.empty()) {
      SetLink(HtmlAttribute(token.raw, "href"));
    }
    if (opens && token.name == "base") base_ = HtmlAttribute(token.raw, "href");
  }
  std::vector<ContentsEntry> Result(std::string& base) {
    Flush();
    base = base_;
    return tree_.Result();
  }

 private:
  void OpenList() {
    Flush();
    if (depth_ < kDeepest) ++depth_;
  }
  void CloseList() {
    Flush();
    if (depth_ > 0) --depth_;
  }
  void Begin() {
    Flush();
    in_item_ = true;
  }
  void Flush() {
    if (!in_item_) return;
    in_item_ = false;
    Trim(entry_.title);
    tree_.Add(depth_ - 1, std::move(entry_));
    entry_ = {};
  }
  // Links within the page are no contents.
  void SetLink(std::string href) {
    if (!href.starts_with('#')) entry_.href = std::move(href);
  }
  void AddText(std::string_view raw) {
    if (!in_item_) return;
    for (const char c : DecodeHtmlText(raw)) {
      const bool is_space = c == ' ' || c == '\t' || c == '\n' || c == '\r';
      if (!is_space) {
        entry_.title += c;
      } else if (!entry_.title.empty() && !entry_.title.ends_with(' ')) {
        entry_.title += ' ';
      }
    }
  }

  Tree tree_;
  ContentsEntry entry_;
  std::string base_;
  std::size_t depth_ = 0;
  bool in_item_ = false;
};

std::string_view CutField(std::string_view& text, char end) {
  const auto at = text.find(end);
  const auto field = text.substr(0, at);
  text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
  return field;
}

}  // namespace

std::vector<ContentsEntry> ReadContents(std::string_view page,
                                        std::string& base) {
  HtmlScanner scanner(page);
  Reader reader;
  for (auto token = scanner.Next(); token.kind != HtmlToken::kEnd;
       token = scanner.Next()) {
    reader.Read(token);
  }
  return reader.Result(base);
}

std::vector<ContentsEntry> ReadContentsLines(std::string_view lines) {
  Tree tree;
  while (!lines.empty()) {
    auto line = CutField(lines, '\n');
    const auto number = CutField(line, '\t');
    std::size_t depth = 0;
    std::from_chars(number.data(), number.data() + number.size(), depth);
    ContentsEntry entry;
    entry.href = CutField(line, '\t');
    entry.title = line;
    tree.Add(std::min(depth, kDeepest), std::move(entry));
  }
  return tree.Result();
}

}  // namespace viewer
