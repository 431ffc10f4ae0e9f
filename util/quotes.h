// Double quotes around a text.
#ifndef UTIL_QUOTES_H_
#define UTIL_QUOTES_H_

#include <string>
#include <string_view>

namespace velmohelp {

/// text without one leading and one trailing double quote, where there is one.
std::string WithoutQuotes(std::string_view text);

}  // namespace velmohelp

#endif  // UTIL_QUOTES_H_
