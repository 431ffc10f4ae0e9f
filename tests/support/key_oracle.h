// The oracle of the key scanner: a second implementation, slow and obvious, one
// byte after the other.
#ifndef TESTS_SUPPORT_KEY_ORACLE_H_
#define TESTS_SUPPORT_KEY_ORACLE_H_

#include <optional>
#include <string>

namespace velmohelp::testing {

/// What a parser's buffer holds of a file: of each piece of 1023 bytes, the
/// bytes before its first zero byte.
std::string OracleBuffer(const std::string& file);

/// See XMLParser::GetKey; nullopt when the scan never ends, which a caller of
/// the real one has to know beforehand.
std::optional<std::string> OracleKey(const std::string& text,
                                     const std::string& key);

/// See XMLParser::PopulatePathArray.
void OraclePathTable(const std::string& text, std::string (*table)[2],
                     int& count);

/// ASCII letters alone, as the "C" locale has it.
std::string OracleUpper(std::string text);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_KEY_ORACLE_H_
