#include "util/percent_encoding.h"

#include <velmohelp/text.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "util/ascii.h"
#include "util/platform_string.h"
#include "util/uri.h"

namespace {

constexpr char kLowerHexDigits[] = "0123456789abcdef";
constexpr char kUpperHexDigits[] = "0123456789ABCDEF";

/// One entry for each byte: 1 where it is escaped, 0 where it stays.
using EscapeTable = std::array<std::uint8_t, 256>;

constexpr EscapeTable EscapeAllBut(bool (*stays)(char)) {
  EscapeTable table{};
  for (std::size_t byte = 0; byte < table.size(); ++byte) {
    table[byte] = stays(static_cast<char>(byte)) ? 0 : 1;
  }
  return table;
}

/// "-", "_" and "." are not among these: search pages expect them escaped.
constexpr bool StaysInSearchTerm(char byte) {
  constexpr std::string_view kMarks = "'()*!~";
  return velmohelp::IsAsciiAlnum(byte) ||
         kMarks.find(byte) != std::string_view::npos;
}

constexpr EscapeTable kSearchTermTable = EscapeAllBut(StaysInSearchTerm);
constexpr EscapeTable kUriTable = EscapeAllBut(velmohelp::IsUriCharacter);

std::size_t CountEscapes(std::string_view text, const EscapeTable& table) {
  std::size_t count = 0;
  for (const char byte : text) count += table[static_cast<unsigned char>(byte)];
  return count;
}

void WriteEscape(char* to, char byte, const char* digits) {
  const auto value = static_cast<unsigned char>(byte);
  to[0] = '%';
  to[1] = digits[value >> 4];
  to[2] = digits[value & 15];
}

/// The result's size is known before its first byte is written: memory that
/// grows is touched more than once, and that is most of the cost.
std::string Escaped(std::string_view text, const EscapeTable& table,
                    const char* digits) {
  constexpr std::size_t kEscapeLength = 3;
  const std::size_t escapes = CountEscapes(text, table);
  if (escapes == 0) return std::string(text);
  std::string out(text.size() + (kEscapeLength - 1) * escapes, '\0');
  char* to = out.data();
  for (const char byte : text) {
    if (table[static_cast<unsigned char>(byte)] == 0) {
      *to++ = byte;
    } else {
      WriteEscape(to, byte, digits);
      to += kEscapeLength;
    }
  }
  return out;
}

}  // namespace

/// Percent escapes are left out of what is escaped by going from one "%" to
/// the next: between two of them the table decides alone.
std::string velmohelp::EscapeForUri(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const std::size_t length =
        IsPercentEscape(text) ? 3 : std::min(text.find('%', 1), text.size());
    const std::string_view piece = text.substr(0, length);
    out += IsPercentEscape(text) ? std::string(piece)
                                 : Escaped(piece, kUriTable, kUpperHexDigits);
    text.remove_prefix(length);
  }
  return out;
}

std::string char2hex(char byte) {
  char escape[3];
  WriteEscape(escape, byte, kLowerHexDigits);
  return {escape + 1, escape + 3};
}

std::string urlencode(const std::string& text) {
  // Lengths are signed 32-bit counts: 2 GiB and more count as less than none.
  if (text.size() > std::numeric_limits<std::int32_t>::max()) return "";
  return Escaped(text, kSearchTermTable, kLowerHexDigits);
}

std::string ITEMInternal::VelmoHelpEncodeURIComponent(const std::string& text) {
  const auto original = velmohelp::MakePlatformString(text, kTextEncodingUtf8);
  if (!original) return "";
  const PlatformString escaped(velmohelp::EscapeForUri(original->utf8()));
  return GetString(&escaped, kTextEncodingUtf8);
}
