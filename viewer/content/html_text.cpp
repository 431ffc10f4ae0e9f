// Character references in HTML text.
#include <array>
#include <charconv>
#include <cstdint>

#include "viewer/content/html_scanner.h"

namespace viewer {
namespace {

struct Named {
  std::string_view name;
  std::string_view text;
};

// Those that help pages use for what a person may search for or read in a
// title. Any other stays as it is written.
constexpr auto kNamed = std::to_array<Named>({
    {"amp", "&"},         {"lt", "<"},          {"gt", ">"},
    {"quot", "\""},       {"apos", "'"},        {"nbsp", " "},
    {"auml", "\u00e4"},   {"ouml", "\u00f6"},   {"uuml", "\u00fc"},
    {"Auml", "\u00c4"},   {"Ouml", "\u00d6"},   {"Uuml", "\u00dc"},
    {"szlig", "\u00df"},  {"eacute", "\u00e9"}, {"egrave", "\u00e8"},
    {"agrave", "\u00e0"}, {"ccedil", "\u00e7"}, {"copy", "\u00a9"},
    {"reg", "\u00ae"},    {"trade", "\u2122"},  {"hellip", "\u2026"},
    {"ndash", "\u2013"},  {"mdash", "\u2014"},  {"lsquo", "\u2018"},
    {"rsquo", "\u2019"},  {"ldquo", "\u201c"},  {"rdquo", "\u201d"},
    {"laquo", "\u00ab"},  {"raquo", "\u00bb"},  {"bull", "\u2022"},
    {"middot", "\u00b7"}, {"times", "\u00d7"},  {"rarr", "\u2192"},
    {"shy", ""},
});

void AppendUtf8(std::uint32_t c, std::string& out) {
  const auto put = [&out](std::uint32_t byte) {
    out += static_cast<char>(static_cast<unsigned char>(byte));
  };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xc0 | c >> 6);
    put(0x80 | (c & 0x3f));
  } else if (c < 0x10000) {
    put(0xe0 | c >> 12);
    put(0x80 | (c >> 6 & 0x3f));
    put(0x80 | (c & 0x3f));
  } else {
    put(0xf0 | c >> 18);
    put(0x80 | (c >> 12 & 0x3f));
    put(0x80 | (c >> 6 & 0x3f));
    put(0x80 | (c & 0x3f));
  }
}

bool IsCharacter(std::uint32_t c) {
  return c != 0 && c <= 0x10ffff && (c < 0xd800 || c > 0xdfff);
}

bool AppendNumbered(std::string_view digits, std::string& out) {
  const bool is_hex = digits.starts_with('x') || digits.starts_with('X');
  if (is_hex) digits.remove_prefix(1);
  std::uint32_t c = 0;
  const auto* end = digits.data() + digits.size();
  const auto result = std::from_chars(digits.data(), end, c, is_hex ? 16 : 10);
  if (result.ec != std::errc{} || result.ptr != end || !IsCharacter(c)) {
    return false;
  }
  AppendUtf8(c, out);
  return true;
}

bool AppendReference(std::string_view reference, std::string& out) {
  if (reference.starts_with('#')) {
    return AppendNumbered(reference.substr(1), out);
  }
  for (const auto& named : kNamed) {
    if (named.name == reference) {
      out += named.text;
      return true;
    }
  }
  return false;
}

}  // namespace

std::string DecodeHtmlText(std::string_view raw) {
  constexpr std::size_t kLongest = 10;
  std::string text;
  text.reserve(raw.size());
  while (true) {
    const auto at = raw.find('&');
    text += raw.substr(0, at);
    if (at == std::string_view::npos) return text;
    raw.remove_prefix(at + 1);
    const auto end = raw.substr(0, kLongest).find(';');
    if (end != std::string_view::npos &&
        AppendReference(raw.substr(0, end), text)) {
      raw.remove_prefix(end + 1);
    } else {
      text += '&';
    }
  }
}

}  // namespace viewer
