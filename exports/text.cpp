#include <velmohelp/text.h>

#include "util/path_join.h"
#include "util/percent_encoding.h"
#include "util/quotes.h"

std::string AppentPath(std::string base, std::string leaf) {
  return velmohelp::JoinPathWithSlash(base, leaf);
}

std::string urlencode(const std::string& text) {
  return velmohelp::EncodeSearchTerm(text);
}

std::string char2hex(char byte) { return velmohelp::LowerHexDigits(byte); }

std::string StripDoubleQuotes(std::string text) {
  return velmohelp::WithoutQuotes(text);
}

std::string ITEMInternal::VelmoHelpEncodeURIComponent(const std::string& text) {
  return velmohelp::EncodeUriComponent(text);
}

std::string ITEMInternal::AppendToPath(const std::string& base,
                                       const std::string& leaf) {
  return velmohelp::JoinPath(base, leaf);
}
