// The command line of a desktop entry.
#ifndef PLATFORM_LINUX_HELPERS_EXEC_LINE_H_
#define PLATFORM_LINUX_HELPERS_EXEC_LINE_H_

#include <string>
#include <vector>

namespace velmohelp {

/// The values of a command line's field codes; "" when the entry has none.
struct FieldValues {
  std::string url;
  std::string icon = {};
  std::string name = {};
  std::string file = {};
};

/// The argument vector of an Exec line (Desktop Entry Specification 1.5).
/// Empty when the line is refused.
///
/// Each field code is replaced by its quoted value before the line is split
/// into words, so that no value can add a word or a quote. %u, %U, %f and %F
/// give the URL exactly as it is: as a path it would lose its query. Only the
/// first of them does, and a line without any gets the URL as its last word.
/// Deprecated and unknown codes give nothing.
///
/// A line is refused when it cannot be split, when a field code other than %%
/// is quoted (a word of `sh -c "browser %u"` is a program, and the URL would be
/// part of it), or when the URL would not reach the browser.
std::vector<std::string> ExpandExecLine(const std::string& line,
                                        const FieldValues& values);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_EXEC_LINE_H_
