// The tool's command line, run in this process.
#ifndef TESTS_TOOLS_RUN_TOOL_H_
#define TESTS_TOOLS_RUN_TOOL_H_

#include <sstream>
#include <string>
#include <vector>

#include "tools/command_line.h"

namespace velmohelp::testing {

struct ToolRun {
  int status;
  std::string out;
  std::string err;
};

inline ToolRun RunTool(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  const tool::Console console{.out = out, .err = err};
  const int status = tool::RunCommandLine(arguments, console);
  return {status, out.str(), err.str()};
}

}  // namespace velmohelp::testing

#endif  // TESTS_TOOLS_RUN_TOOL_H_
