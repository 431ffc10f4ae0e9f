#include <velmohelp/text.h>
#include <velmohelp/velmohelp.h>

#include <cstring>

#include "exports/guarded.h"
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

long VelmoHelpEncodeURIComponent(const char* in, char* out, long outSize) {
  constexpr long kNotWritten = -1;
  if (in == nullptr || out == nullptr) return kNotWritten;
  return velmohelp::Guarded<long>(kNotWritten, [&] {
    const std::string text = velmohelp::EncodeUriComponent(in);
    const auto length = static_cast<long>(text.size());
    if (length >= outSize) return kNotWritten;
    std::memcpy(out, text.c_str(), text.size() + 1);
    return length;
  });
}
