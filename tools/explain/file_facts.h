// Why a file is not there, cannot be read, or does not run.
#ifndef TOOLS_EXPLAIN_FILE_FACTS_H_
#define TOOLS_EXPLAIN_FILE_FACTS_H_

#include <string>

namespace velmohelp::tool {

/// In the system's words; "" when there is no reason.
std::string WhyNotFound(const std::string& path);
std::string WhyNotRead(const std::string& path);

/// Why the system would not start the program at a path: it may not be
/// executed, or is neither a program of this system nor a script whose
/// interpreter is there. "" when it would. Starts nothing.
std::string WhyNotRun(const std::string& path);

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_FILE_FACTS_H_
