// The command line of a desktop entry.
#ifndef PLATFORM_LINUX_HELPERS_EXEC_LINE_H_
#define PLATFORM_LINUX_HELPERS_EXEC_LINE_H_

#include <string>
#include <vector>

namespace velmohelp {

/// What the field codes of a command line stand for.
struct FieldValues {
  std::string url;
  std::string icon;
  std::string name;
  std::string file;
};

/// The words of an Exec line with its field codes replaced, by the Desktop
/// Entry Specification (version 1.5), except that %f and %F give the URL too,
/// exactly as it stands: as a path it would lose its query. A line without a
/// code for the URL gets it as its last word. Deprecated and unknown codes go
/// away. Empty when the line cannot be read.
std::vector<std::string> ExpandExecLine(const std::string& line,
                                        const FieldValues& values);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_EXEC_LINE_H_
