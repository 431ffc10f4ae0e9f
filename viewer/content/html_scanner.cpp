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

std::string HtmlAttribute(std::string_view raw, std::string_view name) {
  const auto is_space = [](char c) { return !IsNameByte(c) && c != '>'; };
  std::size_t i = 0;
  while (i < raw.size()) {
    while (i < raw.size() && is_space(raw[i])) ++i;
    const auto start = i;
    while (i < raw.size() && !is_space(raw[i]) && raw[i] != '=') ++i;
    const auto key = raw.substr(start, i - start);
    while (i < raw.size() && is_space(raw[i]) && raw[i] != '/') ++i;
    std::string_view value;
    if (i < raw.size() && raw[i] == '=') {
      ++i;
      while (i < raw.size() && is_space(raw[i]) && raw[i] != '/') ++i;
      const char quote = i < raw.size() ? raw[i] : '\0';
      if (quote == '"' || quote == '\'') {
        const auto end = std::min(raw.find(quote, i + 1), raw.size());
        value = raw.substr(i + 1, end - i - 1);
        i = std::min(end + 1, raw.size());
      } else {
        const auto end =
            std::min(raw.find_first_of(" \t\r\n\f", i), raw.size());
        value = raw.substr(i, end - i);
        i = end;
      }
    }
    if (EqualsIgnoringCase(key, name)) return DecodeHtmlText(value);
    if (i == start) ++i;
  }
  return {};
}

}  // namespace viewer
