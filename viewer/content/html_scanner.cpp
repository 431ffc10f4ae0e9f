#include "viewer/content/html_scanner.h"

#include <algorithm>

namespace viewer {
namespace {

constexpr auto kNone = std::string_view::npos;

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsNameByte(char c) {
  return c != '>' && c != '/' && c != ' ' && c != '\t' && c != '\n' &&
         c != '\r' && c != '\f';
}

bool EqualsIgnoringCase(std::string_view text, std::string_view lower) {
  return std::equal(text.begin(), text.end(), lower.begin(), lower.end(),
                    [](char a, char b) { return Lower(a) == b; });
}

bool IsRawText(const std::string& name) {
  return name == "script" || name == "style";
}

}  // namespace

HtmlToken HtmlScanner::Next() {
  while (at_ < page_.size()) {
    if (page_[at_] != '<') return Text();
    const bool has_next = at_ + 1 < page_.size();
    const char next = has_next ? page_[at_ + 1] : '\0';
    if (IsLetter(next) || next == '/') return Tag();
    if (!SkipMarkup()) return Text();
  }
  return {};
}

HtmlToken HtmlScanner::Text() {
  // A lone "<" is text.
  const auto end = std::min(page_.find('<', at_ + 1), page_.size());
  const auto raw = page_.substr(at_, end - at_);
  at_ = end;
  return {.kind = HtmlToken::kText, .name = {}, .raw = raw};
}

HtmlToken HtmlScanner::Tag() {
  const bool closes = page_[at_ + 1] == '/';
  const auto start = at_ + (closes ? 2 : 1);
  auto end = start;
  while (end < page_.size() && IsNameByte(page_[end])) ++end;
  std::string name(page_.substr(start, end - start));
  std::transform(name.begin(), name.end(), name.begin(), Lower);
  const auto tag_end = TagEnd(end);
  const auto raw = page_.substr(end, tag_end - end);
  at_ = std::min(tag_end + 1, page_.size());
  if (!closes && IsRawText(name)) SkipRawText(name);
  return {.kind = closes ? HtmlToken::kClose : HtmlToken::kOpen,
          .name = std::move(name),
          .raw = raw};
}

// A ">" in a quoted value does not end the tag.
std::size_t HtmlScanner::TagEnd(std::size_t from) const {
  char quote = '\0';
  for (auto i = from; i < page_.size(); ++i) {
    const char c = page_[i];
    if (quote != '\0') {
      if (c == quote) quote = '\0';
    } else if ((c == '"' || c == '\'') && page_[i - 1] == '=') {
      quote = c;
    } else if (c == '>') {
      return i;
    }
  }
  return page_.size();
}

bool HtmlScanner::SkipMarkup() {
  const auto rest = page_.substr(at_);
  const bool is_comment = rest.starts_with("<!--");
  if (!is_comment && !rest.starts_with("<!") && !rest.starts_with("<?")) {
    return false;
  }
  const std::string_view closing = is_comment ? "-->" : ">";
  const auto end = page_.find(closing, at_ + 2);
  at_ = end == kNone ? page_.size() : end + closing.size();
  return true;
}

void HtmlScanner::SkipRawText(const std::string& name) {
  for (auto i = page_.find("</", at_); i != kNone;
       i = page_.find("</", i + 2)) {
    if (EqualsIgnoringCase(page_.substr(i + 2, name.size()), name)) {
      at_ = i;
      return;
    }
  }
  at_ = page_.size();
}

namespace {

/// Reads the attributes of a tag, one after the other.
class AttributeReader {
 public:
  explicit AttributeReader(std::string_view raw) : raw_(raw) {}

  bool AtEnd() const { return at_ >= raw_.size(); }

  /// "" before an "=" that has none, and at the end.
  std::string_view Key() {
    SkipSpace();
    const auto start = at_;
    while (!AtEnd() && !IsSpace() && raw_[at_] != '=') ++at_;
    return raw_.substr(start, at_ - start);
  }

  /// "" when none follows.
  std::string_view Value() {
    SkipSpaceBeforeValue();
    if (AtEnd() || raw_[at_] != '=') return {};
    ++at_;
    SkipSpaceBeforeValue();
    const char quote = AtEnd() ? '\0' : raw_[at_];
    return quote == '"' || quote == '\'' ? Quoted(quote) : Bare();
  }

 private:
  bool IsSpace() const { return !IsNameByte(raw_[at_]) && raw_[at_] != '>'; }

  void SkipSpace() {
    while (!AtEnd() && IsSpace()) ++at_;
  }

  // A value may begin with a slash.
  void SkipSpaceBeforeValue() {
    while (!AtEnd() && IsSpace() && raw_[at_] != '/') ++at_;
  }

  std::string_view Quoted(char quote) {
    const auto start = at_ + 1;
    const auto end = std::min(raw_.find(quote, start), raw_.size());
    at_ = std::min(end + 1, raw_.size());
    return raw_.substr(start, end - start);
  }

  std::string_view Bare() {
    const auto start = at_;
    at_ = std::min(raw_.find_first_of(" \t\r\n\f", at_), raw_.size());
    return raw_.substr(start, at_ - start);
  }

  std::string_view raw_;
  std::size_t at_ = 0;
};

}  // namespace

std::string HtmlAttribute(std::string_view raw, std::string_view name) {
  AttributeReader attributes(raw);
  while (!attributes.AtEnd()) {
    const auto key = attributes.Key();
    const auto value = attributes.Value();
    if (EqualsIgnoringCase(key, name)) return DecodeHtmlText(value);
  }
  return {};
}

}  // namespace viewer
