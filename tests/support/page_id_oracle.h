// The oracle of page ids and paths: a second implementation, slow and obvious.
#ifndef TESTS_SUPPORT_PAGE_ID_ORACLE_H_
#define TESTS_SUPPORT_PAGE_ID_ORACLE_H_

#include <string>

namespace velmohelp::testing {

/// See isUrl, isHTMLPage and NormalizePageID.
bool OracleIsUrl(const std::string& text);
bool OracleIsHtmlPage(const std::string& name);
std::string OraclePageId(std::string id);

/// See ITEMInternal::AppendToPath and AppentPath.
std::string OracleAppendToPath(const std::string& base,
                               const std::string& leaf);
std::string OracleAppentPath(const std::string& base, const std::string& leaf);

/// See StripDoubleQuotes.
std::string OracleUnquoted(const std::string& text);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_PAGE_ID_ORACLE_H_
