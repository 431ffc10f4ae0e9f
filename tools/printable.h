// Bytes of files in texts for a person.
#ifndef TOOLS_PRINTABLE_H_
#define TOOLS_PRINTABLE_H_

#include <string>
#include <string_view>

namespace velmohelp::tool {

/// text as one line that no terminal takes for commands: control characters and
/// bytes that are not UTF-8 become "\x1B", and a text of more than longest
/// bytes is cut.
std::string Printable(std::string_view text, std::size_t longest = 120);

/// The same for a path or a command line, which a person copies: only one that
/// nobody reads is cut.
std::string PrintableWhole(std::string_view text);

/// Printable in double quotes.
std::string Quoted(std::string_view text);

}  // namespace velmohelp::tool

#endif  // TOOLS_PRINTABLE_H_
