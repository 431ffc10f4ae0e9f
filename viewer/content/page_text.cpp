#include "viewer/content/page_text.h"

#include <algorithm>
#include <array>

#include "viewer/content/html_scanner.h"

namespace viewer {
namespace {

bool IsOneOf(std::string_view name, const auto& names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// They are the same on every page, so that each search would find every page.
bool IsSurrounding(std::string_view name) {
  static constexpr auto kNames = std::to_array<std::string_view>(
      {"header", "footer", "nav", "aside", "noscript", "template", "head"});
  return IsOneOf(name, kNames);
}

// Text on both sides of them belongs to one word.
bool IsInline(std::string_view name) {
  static constexpr auto kNames = std::to_array<std::string_view>(
      {"a",      "abbr", "b",    "bdi", "bdo", "code", "em",    "font",
       "i",      "kbd",  "mark", "q",   "s",   "samp", "small", "span",
       "strong", "sub",  "sup",  "tt",  "u",   "var",  "wbr"});
  return IsOneOf(name, kNames);
}

bool IsSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

void AppendWords(std::string_view text, std::string& out) {
  for (const char c : text) {
    if (!IsSpace(c)) {
      out += c;
    } else if (!out.empty() && out.back() != ' ') {
      out += ' ';
    }
  }
}

class Reader {
 public:
  void Read(const HtmlToken& token) {
    switch (token.kind) {
      case HtmlToken::kText:
        return ReadText(token.raw);
      case HtmlToken::kOpen:
        return Open(token.name);
      case HtmlToken::kClose:
        return Close(token.name);
      case HtmlToken::kEnd:
        return;
    }
  }

  PageText Result() {
    if (title_.empty()) title_ = heading_;
    for (auto* text : {&title_, &body_}) {
      if (text->ends_with(' ')) text->pop_back();
    }
    return {.title = std::move(title_), .body = std::move(body_)};
  }

 private:
  void Open(const std::string& name) {
    if (name == "title") {
      in_title_ = title_.empty();
    } else if (name == "body") {
      // A head that is never closed ends here.
      surrounding_.clear();
    } else if (surrounding_.empty() ? IsSurrounding(name)
                                    : name == surrounding_) {
      surrounding_ = name;
      ++depth_;
    } else if (name == "h1") {
      in_heading_ = heading_.empty();
    }
    Separate(name);
  }

  void Close(const std::string& name) {
    if (name == "title") in_title_ = false;
    if (name == "h1") in_heading_ = false;
    if (name == surrounding_ && --depth_ <= 0) {
      surrounding_.clear();
      depth_ = 0;
    }
    Separate(name);
  }

  void Separate(const std::string& name) {
    if (!IsInline(name)) AppendWords(" ", body_);
  }

  void ReadText(std::string_view raw) {
    if (in_title_) return AppendWords(DecodeHtmlText(raw), title_);
    if (!surrounding_.empty()) return;
    const std::string text = DecodeHtmlText(raw);
    if (in_heading_) AppendWords(text, heading_);
    AppendWords(text, body_);
  }

  std::string title_;
  std::string heading_;
  std::string body_;
  std::string surrounding_;
  int depth_ = 0;
  bool in_title_ = false;
  bool in_heading_ = false;
};

}  // namespace

PageText ReadPageText(std::string_view page) {
  HtmlScanner scanner(page);
  Reader reader;
  for (auto token = scanner.Next(); token.kind != HtmlToken::kEnd;
       token = scanner.Next()) {
    reader.Read(token);
  }
  return reader.Result();
}

}  // namespace viewer
