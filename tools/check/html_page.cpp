#include "tools/check/html_page.h"

#include <gumbo.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <memory>
#include <new>
#include <vector>

#include "util/ascii.h"
#include "util/trim.h"

namespace velmohelp::tool {
namespace {

constexpr std::string_view kSpace = " \t\r\n\f";

/// Deeper than any page that a person wrote. The parser looks through all open
/// elements at many tags, so its time is tags times depth.
constexpr std::size_t kDeepest = 512;

/// Memory for one tree, freed at once. Gumbo frees a tree by recursion, and a
/// deep one overflows the stack.
class Arena {
 public:
  static void* Allocate(void* arena, std::size_t size) {
    return static_cast<Arena*>(arena)->Take(size);
  }
  static void Keep(void* /*arena*/, void* /*memory*/) {}

 private:
  static constexpr std::size_t kBlockSize = 256U << 10U;
  static constexpr std::size_t kAlignment = alignof(std::max_align_t);

  void* Take(std::size_t size) {
    size = (size + kAlignment - 1) / kAlignment * kAlignment;
    if (size > left_) {
      left_ = std::max(size, kBlockSize);
      blocks_.push_back(std::make_unique_for_overwrite<char[]>(left_));
      at_ = blocks_.back().get();
    }
    char* taken = at_;
    at_ += size;
    left_ -= size;
    return taken;
  }

  std::vector<std::unique_ptr<char[]>> blocks_;
  char* at_ = nullptr;
  std::size_t left_ = 0;
};

/// Elements that have no end tag, or need none.
bool NeedsNoEndTag(std::string_view name) {
  constexpr std::array<std::string_view, 24> kNames = {
      "area",   "base",  "br", "col",   "dd",   "dt",     "embed", "hr",
      "img",    "input", "li", "link",  "meta", "option", "p",     "param",
      "source", "tbody", "td", "tfoot", "th",   "thead",  "tr",    "wbr"};
  return std::ranges::find(kNames, name) != kNames.end();
}

std::string LoweredName(std::string_view tag) {
  std::string name;
  for (const char c : tag) {
    if (!IsAsciiAlnum(c)) break;
    name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return name;
}

/// An estimate: what it takes for tags may be in a script or a comment.
bool IsTooDeep(std::string_view html) {
  std::size_t depth = 0;
  for (std::size_t at = html.find('<'); at != std::string_view::npos;
       at = html.find('<', at + 1)) {
    const std::string_view tag = html.substr(at + 1);
    if (tag.starts_with('/')) {
      if (depth > 0 && !NeedsNoEndTag(LoweredName(tag.substr(1)))) --depth;
    } else if (!tag.empty() && IsAsciiAlnum(tag.front()) &&
               !NeedsNoEndTag(LoweredName(tag)) && ++depth > kDeepest) {
      return true;
    }
  }
  return false;
}

const GumboVector* ChildrenOf(const GumboNode& node) {
  switch (node.type) {
    case GUMBO_NODE_DOCUMENT:
      return &node.v.document.children;
    case GUMBO_NODE_ELEMENT:
    case GUMBO_NODE_TEMPLATE:
      return &node.v.element.children;
    default:
      return nullptr;
  }
}

bool IsElement(const GumboNode& node) {
  return node.type == GUMBO_NODE_ELEMENT || node.type == GUMBO_NODE_TEMPLATE;
}

void AddAttribute(const GumboElement& element, const char* name,
                  HtmlPage& page) {
  const GumboAttribute* attribute =
      gumbo_get_attribute(&element.attributes, name);
  if (attribute != nullptr && *attribute->value != '\0') {
    page.anchors.insert(attribute->value);
  }
}

std::string TextOf(const GumboElement& element) {
  std::string text;
  for (unsigned i = 0; i < element.children.length; ++i) {
    const auto* child = static_cast<GumboNode*>(element.children.data[i]);
    if (child->type == GUMBO_NODE_TEXT) text += child->v.text.text;
  }
  return std::string(Trimmed(text, kSpace));
}

void Collect(const GumboElement& element, HtmlPage& page) {
  AddAttribute(element, "id", page);
  if (element.tag == GUMBO_TAG_A) AddAttribute(element, "name", page);
  const bool is_title = element.tag == GUMBO_TAG_TITLE &&
                        element.tag_namespace == GUMBO_NAMESPACE_HTML;
  if (is_title && page.title.empty()) page.title = TextOf(element);
}

HtmlPage CollectFrom(const GumboNode* root) {
  HtmlPage page;
  std::vector<const GumboNode*> left = {root};
  while (!left.empty()) {
    const GumboNode& node = *left.back();
    left.pop_back();
    if (IsElement(node)) Collect(node.v.element, page);
    const GumboVector* children = ChildrenOf(node);
    for (unsigned i = children == nullptr ? 0 : children->length; i > 0; --i) {
      left.push_back(static_cast<const GumboNode*>(children->data[i - 1]));
    }
  }
  return page;
}

}  // namespace

std::optional<HtmlPage> ParseHtmlPage(std::string_view html) {
  if (html.size() > kHtmlPageLimit || IsTooDeep(html)) return std::nullopt;
  Arena arena;
  GumboOptions options = kGumboDefaultOptions;
  options.allocator = Arena::Allocate;
  options.deallocator = Arena::Keep;
  options.userdata = &arena;
  options.max_errors = 0;
  const GumboOutput* output =
      gumbo_parse_with_options(&options, html.data(), html.size());
  return CollectFrom(output->document);
}

}  // namespace velmohelp::tool
