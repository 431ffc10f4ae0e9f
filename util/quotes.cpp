#include "util/quotes.h"

namespace velmohelp {

/// First the last character goes, whatever it is, and the leading quote; then
/// the last character comes back unless it is a quote.
std::string WithoutQuotes(std::string_view text) {
  if (text.empty()) return "";
  std::string result(text.front() == '"' ? text.substr(1, text.size() - 2)
                                         : text.substr(0, text.size() - 1));
  if (text.back() != '"') result += text.back();
  return result;
}

}  // namespace velmohelp
