#include <algorithm>
#include <pugixml.hpp>

#include "tools/import/readers.h"

namespace velmohelp::tool {
namespace {

std::size_t LineAt(std::string_view text, std::ptrdiff_t offset) {
  const auto* end =
      text.begin() + std::min<std::ptrdiff_t>(offset, std::ssize(text));
  return 1 + static_cast<std::size_t>(std::count(text.begin(), end, '\n'));
}

void Parse(std::string_view xml, pugi::xml_document& document) {
  const auto result = document.load_buffer(xml.data(), xml.size());
  if (result) return;
  throw ImportError("line " + std::to_string(LineAt(xml, result.offset)) +
                    ": not well-formed XML: " + result.description());
}

void ExpectRoot(const pugi::xml_document& document, const char* name) {
  if (document.child(name)) return;
  throw ImportError(std::string("no <") + name + "> element");
}

/// Every element of a name below the root, as a row of two of its attributes.
class RowsOfElements : public pugi::xml_tree_walker {
 public:
  RowsOfElements(std::string_view xml, const char* element)
      : xml_(xml), element_(element) {}

  bool for_each(pugi::xml_node& node) override {
    if (std::string_view(node.name()) != element_) return true;
    AdvanceTo(node.offset_debug());
    const std::string id = node.attribute("id").value();
    const std::string target = node.attribute("ref").value();
    if (id.empty() || target.empty()) {
      table_.remarks.push_back({line_, "has no id or no ref; skipped"});
    } else {
      table_.rows.push_back({id, target, line_});
    }
    return true;
  }

  IdTable Take() { return std::move(table_); }

 private:
  /// Elements come in the order of the text, so each line end counts once. The
  /// parser converts UTF-16 first, which may make its text longer than this
  /// one.
  void AdvanceTo(std::ptrdiff_t offset) {
    offset = std::min(offset, std::ssize(xml_));
    if (offset < at_) return;
    const auto* begin = xml_.begin();
    line_ +=
        static_cast<std::size_t>(std::count(begin + at_, begin + offset, '\n'));
    at_ = offset;
  }

  std::string_view xml_;
  std::string_view element_;
  IdTable table_;
  std::ptrdiff_t at_ = 0;
  std::size_t line_ = 1;
};

IdTable ReadElements(std::string_view xml, const char* root,
                     const char* element) {
  pugi::xml_document document;
  Parse(xml, document);
  ExpectRoot(document, root);
  RowsOfElements rows(xml, element);
  document.traverse(rows);
  return rows.Take();
}

}  // namespace

IdTable ReadGimpHelp(std::string_view xml) {
  return ReadElements(xml, "gimp-help", "help-item");
}

IdTable ReadQtHelpProject(std::string_view xml) {
  return ReadElements(xml, "QtHelpProject", "keyword");
}

}  // namespace velmohelp::tool
