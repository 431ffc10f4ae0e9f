#include "tests/support/uri_oracle.h"

#include <cstdio>
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

/// The text before the first such byte; all of it without one.
std::string Before(char byte, const std::string& text) {
  return text.substr(0, text.find(byte));
}

/// A reference without its fragment, its query and its scheme.
std::string HierarchyOf(const std::string& uri) {
  std::string rest = Before('?', Before('#', uri));
  const std::string scheme = Before(':', Before('/', rest));
  const bool has_scheme = !scheme.empty() && rest[scheme.size()] == ':';
  return has_scheme ? rest.substr(scheme.size() + 1) : rest;
}

constexpr char kLetters[] =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

bool IsScheme(const std::string& text) {
  const std::string letters = kLetters;
  return letters.find(text[0]) != std::string::npos &&
         text.find_first_not_of(letters + "0123456789+-.") == std::string::npos;
}

std::string AuthorityOf(const std::string& uri) {
  const std::string rest = HierarchyOf(uri);
  return rest.find("//") == 0 ? Before('/', rest.substr(2)) : "";
}

bool IsHexDigit(char byte) {
  return std::string("0123456789ABCDEFabcdef").find(byte) != std::string::npos;
}

bool IsEscape(const std::string& text) {
  return text.size() == 3 && text[0] == '%' && IsHexDigit(text[1]) &&
         IsHexDigit(text[2]);
}

bool IsUriByte(char byte) {
  return std::string(kUriCharacters).find(byte) != std::string::npos;
}

}  // namespace

bool OracleIsUri(const std::string& text) {
  const std::string seen = Before('\0', text);
  for (std::size_t at = 0; at < seen.size(); ++at) {
    if (!IsUriByte(seen[at]) && !IsEscape(seen.substr(at, 3))) return false;
  }
  return !seen.empty();
}

bool OracleIsHierarchical(const std::string& uri) {
  const std::string segment = Before('/', Before('?', Before('#', uri)));
  const std::string scheme = Before(':', segment);
  const bool has_colon = scheme != segment;
  if (!has_colon) return true;
  return !scheme.empty() && IsScheme(scheme) && uri[scheme.size() + 1] == '/';
}

std::string OracleUriPath(const std::string& uri) {
  const std::string rest = HierarchyOf(uri);
  if (rest.find("//") != 0) return rest;
  return rest.substr(2 + AuthorityOf(uri).size());
}

std::optional<std::string> OracleUriHost(const std::string& uri) {
  std::string host = AuthorityOf(uri);
  while (host.find('@') != std::string::npos) {
    host.erase(0, host.find('@') + 1);
  }
  host = host.find('[') == 0 ? Before(']', host.substr(1)) : Before(':', host);
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
  const std::string seen = Before('\0', text);
  if (!OracleIsUtf8(seen)) return "";
  std::string encoded;
  for (std::size_t at = 0; at < seen.size(); ++at) {
    const bool stays = IsUriByte(seen[at]) || IsEscape(seen.substr(at, 3));
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

/// Its sequences are legal and none is a surrogate: strict UTF-16 accepts it.
bool OracleIsUtf8(const std::string& text) {
  const auto* bytes = reinterpret_cast<const ITEMUTF8*>(text.data());
  std::vector<ITEMUTF16> units(text.size() + 1);
  const Outcome outcome =
      OracleUtf8To16(bytes, text.size(), units.data(), units.size(), false);
  return outcome.result == kConversionComplete;
}

}  // namespace velmohelp::testing
