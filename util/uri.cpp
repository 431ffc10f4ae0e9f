#include "util/uri.h"

#include <algorithm>

#include "util/c_string.h"

namespace velmohelp {
namespace {

bool IsScheme(std::string_view text) {
  constexpr std::string_view kMarks = "+-.";
  return IsAsciiAlpha(text.front()) &&
         std::ranges::all_of(text, [&](char byte) {
           return IsAsciiAlnum(byte) ||
                  kMarks.find(byte) != std::string_view::npos;
         });
}

/// "http://host/x" -> "//host/x"; "/a/b:c" and ":a" stay.
std::string_view WithoutScheme(std::string_view uri) {
  const std::size_t end = uri.find_first_of(":/?#");
  const bool has_scheme =
      end != 0 && end != std::string_view::npos && uri[end] == ':';
  return has_scheme ? uri.substr(end + 1) : uri;
}

/// "http://user@host:80/x" -> "user@host:80"; empty when there is none.
std::string_view AuthorityOf(std::string_view uri) {
  std::string_view rest = WithoutScheme(uri);
  if (!rest.starts_with("//")) return {};
  rest.remove_prefix(2);
  return rest.substr(0, rest.find_first_of("/?#"));
}

/// "user@[::1]:80" -> "::1"; "user@host:80" -> "host".
std::string_view WithoutUserAndPort(std::string_view authority) {
  authority.remove_prefix(authority.rfind('@') + 1);
  if (authority.starts_with('[')) {
    return authority.substr(1, authority.find(']') - 1);
  }
  return authority.substr(0, authority.find(':'));
}

}  // namespace

bool IsPercentEscape(std::string_view text) {
  return text.size() >= 3 && text[0] == '%' && HexValue(text[1]) >= 0 &&
         HexValue(text[2]) >= 0;
}

bool IsUri(std::string_view text) {
  if (text.empty()) return false;
  while (!text.empty()) {
    if (IsPercentEscape(text)) {
      text.remove_prefix(3);
    } else if (IsUriCharacter(text[0])) {
      text.remove_prefix(1);
    } else {
      return false;
    }
  }
  return true;
}

std::optional<std::string> UriOf(std::string_view text) {
  const std::string_view uri = UpToZero(text);
  if (!IsUri(uri)) return std::nullopt;
  return std::string(uri);
}

std::string Unescaped(std::string_view text) {
  std::string result;
  for (; !text.empty(); text.remove_prefix(1)) {
    if (!IsPercentEscape(text)) {
      result += text[0];
      continue;
    }
    result += static_cast<char>(HexValue(text[1]) * 16 + HexValue(text[2]));
    text.remove_prefix(2);
  }
  return result;
}

bool IsHierarchical(std::string_view uri) {
  const std::size_t end = uri.find_first_of(":/?#");
  if (end == std::string_view::npos || uri[end] != ':') return true;
  return end != 0 && IsScheme(uri.substr(0, end)) &&
         uri.substr(end + 1).starts_with('/');
}

std::string_view PathOfUri(std::string_view uri) {
  std::string_view rest = WithoutScheme(uri);
  if (rest.starts_with("//")) {
    rest.remove_prefix(2 + AuthorityOf(uri).size());
  }
  return rest.substr(0, rest.find_first_of("?#"));
}

std::optional<std::string> HostOfUri(std::string_view uri) {
  const std::string_view host = WithoutUserAndPort(AuthorityOf(uri));
  if (host.empty()) return std::nullopt;
  return Unescaped(host);
}

}  // namespace velmohelp
