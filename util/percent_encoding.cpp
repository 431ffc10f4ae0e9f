#include "util/percent_encoding.h"

#include <velmohelp/text.h>

#include <cstdint>
#include <limits>

#include "util/ascii.h"
#include "util/platform_string.h"
#include "util/uri.h"

namespace {

using velmohelp::IsAsciiAlnum;

constexpr char kLowerHexDigits[] = "0123456789abcdef";
constexpr char kUpperHexDigits[] = "0123456789ABCDEF";

/// "-", "_" and "." are not among these: search pages expect them escaped.
bool PassesInSearchTerm(char byte) {
  constexpr std::string_view kMarks = "'()*!~";
  return IsAsciiAlnum(byte) || kMarks.find(byte) != std::string_view::npos;
}

std::string HexOf(char byte, const char* digits) {
  const auto value = static_cast<unsigned char>(byte);
  return {digits[value >> 4], digits[value & 15]};
}

}  // namespace

std::string velmohelp::EscapeForUri(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsUriCharacter(text[i]) || IsPercentEscape(text.substr(i))) {
      out += text[i];
    } else {
      out += '%' + HexOf(text[i], kUpperHexDigits);
    }
  }
  return out;
}

std::string char2hex(char byte) { return HexOf(byte, kLowerHexDigits); }

std::string urlencode(const std::string& text) {
  std::string out;
  // Lengths are signed 32-bit counts: 2 GiB and more count as less than none.
  if (text.size() > std::numeric_limits<std::int32_t>::max()) return out;
  for (const char byte : text) {
    if (PassesInSearchTerm(byte)) {
      out += byte;
    } else {
      out += '%' + char2hex(byte);
    }
  }
  return out;
}

std::string ITEMInternal::VelmoHelpEncodeURIComponent(const std::string& text) {
  const auto original = velmohelp::MakePlatformString(text, kTextEncodingUtf8);
  if (!original) return "";
  const PlatformString escaped(velmohelp::EscapeForUri(original->utf8()));
  return GetString(&escaped, kTextEncodingUtf8);
}
