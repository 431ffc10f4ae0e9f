#include "util/percent_encoding.h"

#include <velmohelp/text.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>

#include "util/ascii.h"
#include "util/platform_string.h"
#include "util/search_term.h"
#include "util/uri.h"

namespace {

constexpr char kLowerHexDigits[] = "0123456789abcdef";
constexpr char kUpperHexDigits[] = "0123456789ABCDEF";

constexpr void WriteEscape(char* to, char byte, const char* digits) {
  const auto value = static_cast<unsigned char>(byte);
  to[0] = '%';
  to[1] = digits[value >> 4];
  to[2] = digits[value & 15];
}

/// What is written for a byte: one byte or three. The fourth is never part of
/// a result; four are copied at once.
struct Written {
  char bytes[4] = {};
  std::uint8_t length = 1;
};

using EscapeTable = std::array<Written, 256>;

constexpr EscapeTable EscapeAllBut(bool (*stays)(char), const char* digits) {
  EscapeTable table{};
  for (std::size_t i = 0; i < table.size(); ++i) {
    const char byte = static_cast<char>(i);
    if (stays(byte)) {
      table[i].bytes[0] = byte;
    } else {
      WriteEscape(table[i].bytes, byte, digits);
      table[i].length = 3;
    }
  }
  return table;
}

constexpr bool StaysInSearchTerm(char byte) {
  return velmohelp::StaysInSearchTerm(static_cast<unsigned char>(byte)) != 0;
}

constexpr EscapeTable kSearchTermTable =
    EscapeAllBut(StaysInSearchTerm, kLowerHexDigits);
constexpr EscapeTable kUriTable =
    EscapeAllBut(velmohelp::IsUriCharacter, kUpperHexDigits);

const Written& WrittenFor(char byte, const EscapeTable& table) {
  return table[static_cast<unsigned char>(byte)];
}

std::size_t EscapedSize(std::string_view text, const EscapeTable& table) {
  std::size_t size = 0;
  for (const char byte : text) size += WrittenFor(byte, table).length;
  return size;
}

/// The result's size is known before its first byte is written: memory that
/// grows is touched more than once, and that is most of the cost. Each byte is
/// written without asking what it is: in running text nobody can guess which
/// one is escaped, a processor neither.
std::string Escaped(std::string_view text, const EscapeTable& table,
                    std::size_t size) {
  constexpr std::size_t kCopiedAtOnce = sizeof Written::bytes;
  if (size == text.size()) return std::string(text);
  std::string out(size + kCopiedAtOnce, '\0');
  char* to = out.data();
  for (const char byte : text) {
    const Written& written = WrittenFor(byte, table);
    std::memcpy(to, written.bytes, kCopiedAtOnce);
    to += written.length;
  }
  out.resize(size);
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
    out += IsPercentEscape(text)
               ? std::string(piece)
               : Escaped(piece, kUriTable, EscapedSize(piece, kUriTable));
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
  const std::size_t escaped = text.size() - velmohelp::CountStaying(text);
  return Escaped(text, kSearchTermTable, text.size() + 2 * escaped);
}

std::string ITEMInternal::VelmoHelpEncodeURIComponent(const std::string& text) {
  const auto original = velmohelp::MakePlatformString(text, kTextEncodingUtf8);
  if (!original) return "";
  const PlatformString escaped(velmohelp::EscapeForUri(original->utf8()));
  return GetString(&escaped, kTextEncodingUtf8);
}
