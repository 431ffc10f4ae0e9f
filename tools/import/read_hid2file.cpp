#include <optional>

#include "tools/import/readers.h"

namespace velmohelp::tool {
namespace {

/// Finds the pairs of string literals with a colon between them.
class PairScanner {
 public:
  explicit PairScanner(std::string_view text) : rest_(text) {}

  /// False at the end of the text.
  bool Next(IdRow& row) {
    while (SkipToQuote()) {
      row.line = line_;
      const auto id = ReadLiteral();
      if (!id) return false;
      SkipSpace();
      if (!rest_.starts_with(':')) continue;
      Pop();
      SkipSpace();
      if (!AtQuote()) continue;
      const auto target = ReadLiteral();
      if (!target) return false;
      row.id = *id;
      row.target = *target;
      return true;
    }
    return false;
  }

 private:
  bool AtQuote() const {
    return rest_.starts_with('\'') || rest_.starts_with('"');
  }

  bool SkipToQuote() {
    while (!rest_.empty() && !AtQuote()) {
      if (rest_.starts_with("//")) {
        SkipTo("\n");
      } else if (rest_.starts_with("/*")) {
        SkipTo("*/");
      } else {
        Pop();
      }
    }
    return !rest_.empty();
  }

  void SkipTo(std::string_view end) {
    while (!rest_.empty() && !rest_.starts_with(end)) Pop();
  }

  void SkipSpace() {
    while (!rest_.empty() && std::string_view(" \t\r\n").find(rest_.front()) !=
                                 std::string_view::npos) {
      Pop();
    }
  }

  /// A backslash makes the next byte part of the text; nullopt when the quote
  /// is never closed.
  std::optional<std::string> ReadLiteral() {
    const char quote = Pop();
    std::string text;
    while (!rest_.empty()) {
      char c = Pop();
      if (c == quote) return text;
      if (c == '\\' && !rest_.empty()) c = Pop();
      text += c;
    }
    return std::nullopt;
  }

  char Pop() {
    const char c = rest_.front();
    if (c == '\n') ++line_;
    rest_.remove_prefix(1);
    return c;
  }

  std::string_view rest_;
  std::size_t line_ = 1;
};

}  // namespace

IdTable ReadHid2File(std::string_view script) {
  IdTable table;
  PairScanner scanner(script);
  for (IdRow row; scanner.Next(row);) table.rows.push_back(row);
  if (table.rows.empty()) throw ImportError("no 'id':'page' pair");
  return table;
}

}  // namespace velmohelp::tool
