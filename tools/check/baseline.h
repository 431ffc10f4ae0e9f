// Findings that are known and accepted.
#ifndef TOOLS_CHECK_BASELINE_H_
#define TOOLS_CHECK_BASELINE_H_

#include <string_view>

#include "tools/check/finding.h"

namespace velmohelp::tool {

/// Removes the findings that an earlier text report has. Line numbers do not
/// matter, since other lines come and go; each line of the report accepts one
/// finding.
void RemoveKnown(std::string_view report, Findings& findings);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_BASELINE_H_
