// Oracles for what other programs and files say: second implementations, slow
// and obvious.
#ifndef TESTS_SUPPORT_ANSWER_ORACLE_H_
#define TESTS_SUPPORT_ANSWER_ORACLE_H_

#include <optional>
#include <string>
#include <vector>

namespace velmohelp::testing {

/// See PreferenceInText.
std::optional<std::string> OraclePreference(const std::string& file,
                                            const std::string& key);

/// The directory that the tool's first output names; "" for none.
std::string OracleToolPath(const std::string& output);

/// See ParseBrowserAnswer.
std::optional<std::vector<std::string>> OracleBrowserWords(
    const std::string& answer);

/// See CharsetOf.
std::string OracleCharset(const std::string& content_type);

/// See TextCheck, the body being whole.
bool OracleIsText(const std::string& charset, const std::string& body);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_ANSWER_ORACLE_H_
