#include "tests/support/uri_oracle.h"

#include <cstdio>
#include <regex>
#include <vector>

#include "tests/support/unicode_oracle.h"

namespace velmohelp::testing {
namespace {

constexpr char kUriCharacters[] =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"
    "-._~:/?#[]@!$&'()*+,;=";

std::string Printed(const char* format, char byte) {
  char text[8];
  std::snprintf(text, sizeof text, format,
                static_cast<unsigned>(static_cast<unsigned char>(byte)));
  return text;
}

/// The parts of a reference by RFC 3986, appendix B: 4 is the authority, 5 the
/// path.
std::smatch PartsOf(const std::string& uri) {
  static const std::regex kParts(
      R"(^(([^:/?#]+):)?(//([^/?#]*))?([^?#]*)(\?([^#]*))?(#([^]*))?$)");
  std::smatch parts;
  std::regex_match(uri, parts, kParts);
  return parts;
}

bool IsEscape(const std::string& text) {
  static const std::regex kEscape("%[0-9A-Fa-f]{2}");
  return std::regex_match(text, kEscape);
}

}  // namespace

bool OracleIsUri(const std::string& text) {
  std::string rest = text.substr(0, text.find('\0'));
  if (rest.empty()) return false;
  while (!rest.empty()) {
    const bool is_escape = IsEscape(rest.substr(0, 3));
    const bool is_character =
        std::string(kUriCharacters).find(rest[0]) != std::string::npos;
    if (!is_escape && !is_character) return false;
    rest.erase(0, is_escape ? 3 : 1);
  }
  return true;
}

std::string OracleUriPath(const std::string& uri) { return PartsOf(uri)[5]; }

std::optional<std::string> OracleUriHost(const std::string& uri) {
  static const std::regex kLiteral(R"(\[([^\]]*)[^]*)");
  std::string host = PartsOf(uri)[4];
  while (host.find('@') != std::string::npos) {
    host.erase(0, host.find('@') + 1);
  }
  std::smatch literal;
  host = std::regex_match(host, literal, kLiteral)
             ? literal[1].str()
             : host.substr(0, host.find(':'));
  if (host.empty()) return std::nullopt;
  return OracleUnescaped(host);
}

std::string OracleUnescaped(const std::string& text) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (IsEscape(text.substr(at, 3))) {
      const std::string digits = text.substr(at + 1, 2);
      bytes += static_cast<char>(std::stoi(digits, nullptr, 16));
      at += 2;
    } else {
      bytes += text[at];
    }
  }
  return bytes;
}

std::string OracleEncodedUri(const std::string& text) {
  const std::string seen = text.substr(0, text.find('\0'));
  if (!OracleIsUtf8(seen)) return "";
  std::string encoded;
  for (std::size_t at = 0; at < seen.size(); ++at) {
    const bool stays =
        IsEscape(seen.substr(at, 3)) ||
        std::string(kUriCharacters).find(seen[at]) != std::string::npos;
    encoded += stays ? seen.substr(at, 1) : Printed("%%%02X", seen[at]);
  }
  return encoded.size() < 1024 ? encoded : "";
}

std::string OracleEncodedTerm(const std::string& text) {
  const std::string passing =
      "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz'()*!~";
  std::string encoded;
  for (const char byte : text) {
    const bool passes = passing.find(byte) != std::string::npos;
    encoded += passes ? std::string(1, byte) : Printed("%%%02x", byte);
  }
  return encoded;
}

/// Its bytes are legal and their characters are no surrogates: strict UTF-16
/// takes them.
bool OracleIsUtf8(const std::string& text) {
  const auto* bytes = reinterpret_cast<const ITEMUTF8*>(text.data());
  std::vector<ITEMUTF16> units(text.size() + 1);
  const Outcome outcome =
      OracleUtf8To16(bytes, text.size(), units.data(), units.size(), false);
  return outcome.result == kConversionComplete;
}

}  // namespace velmohelp::testing
