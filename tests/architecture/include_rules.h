// Which file may include which: no layer includes from a higher one, and only
// the folder for Linux knows Linux.
#ifndef TESTS_ARCHITECTURE_INCLUDE_RULES_H_
#define TESTS_ARCHITECTURE_INCLUDE_RULES_H_

#include <string>

namespace velmohelp::testing {

/// file: path below the source tree ("config/key_scanner.cpp"); header: as it
/// written after #include, with its quotes or angle brackets.
bool MayInclude(const std::string& file, const std::string& header);

}  // namespace velmohelp::testing

#endif  // TESTS_ARCHITECTURE_INCLUDE_RULES_H_
