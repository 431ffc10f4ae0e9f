// The text of a help map file: one entry a line, key and value parted by TABs.
#ifndef RESOLVE_HELP_MAP_ENTRY_PARSER_H_
#define RESOLVE_HELP_MAP_ENTRY_PARSER_H_

#include <optional>
#include <string_view>

namespace velmohelp {

struct HelpMapEntry {
  std::string_view key;
  std::string_view value;
};

/// Both bytes can end a line.
constexpr bool EndsLine(char c) { return c == '\n' || c == '\r'; }

/// The bytes of text up to the end of its last line that has one.
std::string_view WholeLines(std::string_view text);

/// The whole lines of a text that a read error ends. A line that ends in CR is
/// not whole yet: whether an LF belongs to it is what could not be read.
std::string_view LinesBeforeError(std::string_view text);

/// Walks through the entries of a text, which must outlive it.
class HelpMapReader {
 public:
  explicit HelpMapReader(std::string_view text)
      : at_(text.data()), end_(text.data() + text.size()) {}

  /// The next line that has two fields; false at the end of the text.
  bool Next(HelpMapEntry& entry);

  /// Takes one line off the text; true when it has two fields.
  bool TakeLine(HelpMapEntry& entry);

 private:
  std::string_view TakeField();
  void SkipLine();
  void SkipLinesWithoutTab();

  const char* at_;
  const char* end_;
};

/// The value of the first entry of key, without walking through the others.
std::optional<std::string_view> FindEntry(std::string_view text,
                                          std::string_view key);

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_ENTRY_PARSER_H_
