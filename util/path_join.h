// The two ways of joining path components.
#ifndef UTIL_PATH_JOIN_H_
#define UTIL_PATH_JOIN_H_

#include <string>
#include <string_view>

namespace velmohelp {

/// base and leaf with a "/" between them unless base ends with one. When one
/// of them is empty, the result is the other.
std::string JoinPath(std::string_view base, std::string_view leaf);

/// The same, but the "/" is there even when base or leaf is empty.
std::string JoinPathWithSlash(std::string_view base, std::string_view leaf);

}  // namespace velmohelp

#endif  // UTIL_PATH_JOIN_H_
