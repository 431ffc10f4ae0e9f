// Findings as rows of a table.
#ifndef TESTS_TOOLS_CHECK_FINDINGS_H_
#define TESTS_TOOLS_CHECK_FINDINGS_H_

#include <ostream>
#include <string>
#include <vector>

#include "tools/check/finding.h"

namespace velmohelp::testing {

/// "3:7 missing-key" for each finding.
inline std::vector<std::string> PlacesOf(const tool::Findings& findings) {
  std::vector<std::string> places;
  for (const tool::Finding& finding : findings) {
    places.push_back(std::to_string(finding.at.line) + ":" +
                     std::to_string(finding.at.column) + " " +
                     std::string(finding.rule->name));
  }
  return places;
}

/// A file's text and what is found in it. A row without findings is a file that
/// just does not have the mistake of its neighbour.
struct Checked {
  std::string sentence;
  std::string text;
  std::vector<std::string> places;
};

inline void PrintTo(const Checked& row, std::ostream* out) {
  *out << row.sentence;
}

}  // namespace velmohelp::testing

#endif  // TESTS_TOOLS_CHECK_FINDINGS_H_
