#include <velmohelp/text.h>

#include "exports/guarded.h"
#include "util/path_join.h"
#include "util/percent_encoding.h"
#include "util/quotes.h"

using velmohelp::Uncancelled;

std::string AppentPath(std::string base, std::string leaf) {
  return Uncancelled([&] { return velmohelp::JoinPathWithSlash(base, leaf); });
}

std::string urlencode(const std::string& text) {
  return Uncancelled([&] { return velmohelp::EncodeSearchTerm(text); });
}

std::string char2hex(char byte) {
  return Uncancelled([&] { return velmohelp::LowerHexDigits(byte); });
}

std::string StripDoubleQuotes(std::string text) {
  return Uncancelled([&] { return velmohelp::WithoutQuotes(text); });
}

std::string ITEMInternal::VelmoHelpEncodeURIComponent(const std::string& text) {
  return Uncancelled([&] { return velmohelp::EncodeUriComponent(text); });
}

std::string ITEMInternal::AppendToPath(const std::string& base,
                                       const std::string& leaf) {
  return Uncancelled([&] { return velmohelp::JoinPath(base, leaf); });
}
