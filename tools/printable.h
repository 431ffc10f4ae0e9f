// Bytes of files in texts for a person.
#ifndef TOOLS_PRINTABLE_H_
#define TOOLS_PRINTABLE_H_

#include <string>
#include <string_view>

namespace velmohelp::tool {

/// text as one line that no terminal takes for commands: control characters and
/// bytes that are not UTF-8 become "\x1B", and a long text is cut.
std::string Printable(std::string_view text);

/// Printable in double quotes.
std::string Quoted(std::string_view text);

}  // namespace velmohelp::tool

#endif  // TOOLS_PRINTABLE_H_
