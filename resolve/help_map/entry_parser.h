// The text of a help map file: one entry per line, key and value separated by
// tabs.
#ifndef RESOLVE_HELP_MAP_ENTRY_PARSER_H_
#define RESOLVE_HELP_MAP_ENTRY_PARSER_H_

#include <optional>
#include <string_view>

namespace velmohelp {

struct HelpMapEntry {
  std::string_view key;
  std::string_view value;
};

/// Lines end with LF, CR or CR LF.
constexpr bool EndsLine(char c) { return c == '\n' || c == '\r'; }

/// The bytes of text up to the end of its last line that has an end.
std::string_view WholeLines(std::string_view text);

/// The whole lines of a text that a read error ends. A line that ends in CR is
/// not whole yet: the byte that could not be read may be its LF.
std::string_view LinesBeforeError(std::string_view text);

/// Iterates over the entries of a text, which must outlive it.
class HelpMapParser {
 public:
  explicit HelpMapParser(std::string_view text)
      : at_(text.data()), end_(text.data() + text.size()) {}

  /// Parses lines up to the next one that has two fields; false at the end of
  /// the text.
  bool Next(HelpMapEntry& entry);

  /// Parses one line; true when it has two fields.
  bool ParseLine(HelpMapEntry& entry);

 private:
  std::string_view ParseField();
  void SkipLine();
  void SkipLinesWithoutTab();

  const char* at_;
  const char* end_;
};

/// The value of the first entry with this key, found without parsing the
/// entries before it.
std::optional<std::string_view> FindEntry(std::string_view text,
                                          std::string_view key);

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_ENTRY_PARSER_H_
