// An explanation as text and as JSON.
#ifndef TOOLS_EXPLAIN_REPORT_H_
#define TOOLS_EXPLAIN_REPORT_H_

#include <nlohmann/json.hpp>
#include <string>

#include "tools/explain/cause.h"

namespace velmohelp::tool {

/// A run and what was found out about it.
struct Explanation {
  const Run& run;
  const Surroundings& around;
  Cause cause;
  /// The what-if options, as the person wrote them.
  Arguments what_if;
  /// The programs were started, not only named.
  bool for_real = false;
};

/// What happens, why, and what to do about it: three lines.
std::string FirstLines(const Explanation& explanation, bool color);

/// How it came about, on one screen.
std::string Story(const Explanation& explanation);

/// Every step, numbered.
std::string TrailText(const Trail& trail);

nlohmann::ordered_json JsonOf(const Explanation& explanation);
nlohmann::ordered_json JsonOf(const Trail& trail);

/// A command line as a shell takes it.
std::string ShellCommand(const Arguments& words);

/// One step without its number: "FindFile /x: no (No such file or directory)".
std::string LineOf(const Step& step);

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_REPORT_H_
