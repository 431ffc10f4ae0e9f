#include <velmohelp/text.h>

std::string StripDoubleQuotes(std::string text) {
  if (text.empty()) return text;
  std::string result = text.front() == '"' ? text.substr(1, text.size() - 2)
                                           : text.substr(0, text.size() - 1);
  if (text.back() != '"') result += text.back();
  return result;
}
