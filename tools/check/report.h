// Findings in the forms in which they are printed.
#ifndef TOOLS_CHECK_REPORT_H_
#define TOOLS_CHECK_REPORT_H_

#include <string>

#include "tools/check/finding.h"

namespace velmohelp::tool {

/// "file:line:column: error: text [name]", without a line end.
std::string TextOf(const Finding& finding, bool color);

/// One TextOf per line.
std::string TextReport(const Findings& findings, bool color);

/// An object; docs/tool.md describes it.
std::string JsonReport(const Findings& findings);

/// A log of the Static Analysis Results Interchange Format 2.1.0.
std::string SarifReport(const Findings& findings);

/// "2 errors, 1 warning".
std::string Summary(const Findings& findings);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_REPORT_H_
