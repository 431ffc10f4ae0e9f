// Lines of a stream, and the fields of a line.
#ifndef UTIL_LINES_H_
#define UTIL_LINES_H_

#include <deque>
#include <istream>
#include <string>
#include <string_view>

namespace velmohelp {

/// See ITEMInternal::GetLine.
bool ReadLine(std::istream& stream, std::string& line);

/// See ITEMInternal::DelimitedStringToDeque.
int SplitFields(char delimiter, std::string_view text,
                std::deque<std::string>& out);

}  // namespace velmohelp

#endif  // UTIL_LINES_H_
