// Findings in the forms in which they are printed.
#ifndef TOOLS_CHECK_REPORT_H_
#define TOOLS_CHECK_REPORT_H_

#include <cstddef>
#include <string>
#include <vector>

#include "tools/check/finding.h"

namespace velmohelp::tool {

/// More findings of one file are counted, not printed: nobody reads a million
/// lines, and what reads them stops at a bound of its own.
inline constexpr std::size_t kMostOfAFile = 1000;

/// What is printed of a check.
struct Report {
  struct LeftOut {
    std::string file;
    std::size_t count;
  };

  Findings findings;
  /// In the order of the files.
  std::vector<LeftOut> left_out;
  /// Those that are left out included.
  std::size_t errors = 0;
  std::size_t warnings = 0;
};

/// findings: those of one file one after the other. all: leaves none out.
Report ReportOf(Findings findings, bool all);

/// "file:line:column: error: text [name]", without a line end.
std::string TextOf(const Finding& finding, bool color);

/// One TextOf per line.
std::string TextReport(const Report& report, bool color);

/// An object; docs/tool.md describes it.
std::string JsonReport(const Report& report);

/// A log of the Static Analysis Results Interchange Format 2.1.0.
std::string SarifReport(const Report& report);

/// A line for each file of which findings are left out, and
/// "2 errors, 1 warning".
std::string Summary(const Report& report);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_REPORT_H_
