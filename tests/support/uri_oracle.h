// The generic URI syntax (RFC 3986) and the encoders: oracles, slow and
// obvious. Parts are taken off from the end, as its appendix B has them.
#ifndef TESTS_SUPPORT_URI_ORACLE_H_
#define TESTS_SUPPORT_URI_ORACLE_H_

#include <optional>
#include <string>

namespace velmohelp::testing {

/// text is a URI up to its first zero byte.
bool OracleIsUri(const std::string& text);

/// See util/uri.h.
bool OracleIsHierarchical(const std::string& uri);
std::string OracleUriPath(const std::string& uri);
std::optional<std::string> OracleUriHost(const std::string& uri);
std::string OracleUnescaped(const std::string& text);

/// See ITEMInternal::VelmoHelpEncodeURIComponent and urlencode.
std::string OracleEncodedUri(const std::string& text);
std::string OracleEncodedTerm(const std::string& text);

/// Valid UTF-8 (RFC 3629), by the oracle of the conversions.
bool OracleIsUtf8(const std::string& text);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_URI_ORACLE_H_
