// The oracle of help map files and base URL files: a second implementation,
// slow and obvious, line by line, field by field, entry by entry.
#ifndef TESTS_SUPPORT_MAP_ORACLE_H_
#define TESTS_SUPPORT_MAP_ORACLE_H_

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace velmohelp::testing {

/// See ITEMInternal::GetLine: the lines of a file until it returns false.
std::vector<std::string> OracleLines(const std::string& file);

/// See ITEMInternal::DelimitedStringToDeque.
std::deque<std::string> OracleFields(char delimiter, const std::string& text);

/// See ITEMInternal::LoadMapFile.
std::map<std::string, std::string> OracleMap(const std::string& file);

/// See ITEMInternal::GetHelpMapBaseUrl; nullopt where it throws
/// std::out_of_range.
std::optional<std::string> OracleBaseUrl(const std::string& file);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_MAP_ORACLE_H_
