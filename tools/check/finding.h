// What a check finds.
#ifndef TOOLS_CHECK_FINDING_H_
#define TOOLS_CHECK_FINDING_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmohelp::tool {

enum class Severity { kError, kWarning };

/// A kind of finding. The names are part of the tool's interface.
struct Rule {
  std::string_view name;
  /// kError: the client does something else than the file's author meant.
  Severity severity;
  std::string_view summary;
};

struct Position {
  /// Both count from 1; the column counts characters.
  std::size_t line = 1;
  std::size_t column = 1;
};

struct Finding {
  const Rule* rule;
  std::string file;
  Position at;
  /// One line, printable.
  std::string text;
};

using Findings = std::vector<Finding>;

/// The position of a byte in a text. CR LF, LF and CR end a line.
Position PositionAt(std::string_view text, std::size_t offset);

/// How many characters bytes have, when each that does not continue a UTF-8
/// character starts one.
std::size_t CountCharacters(std::string_view bytes);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_FINDING_H_
