#include "util/percent_encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>

#include "util/ascii.h"
#include "util/search_term.h"
#include "util/text_buffer.h"
#include "util/text_encoding.h"
#include "util/uri.h"

namespace velmohelp {
namespace {

constexpr char kLowerHexDigits[] = "0123456789abcdef";
constexpr char kUpperHexDigits[] = "0123456789ABCDEF";

constexpr void WriteEscape(char* to, char byte, const char* digits) {
  const auto value = static_cast<unsigned char>(byte);
  to[0] = '%';
  to[1] = digits[value >> 4];
  to[2] = digits[value & 15];
}

/// What is written for a byte: itself, or its escape of three bytes.
///
///   bytes   'a'  0   0   0     length 1
///   bytes   '%' '2' '0'  0     length 3
///
/// All four bytes are copied at once; the next copy overwrites those beyond
/// the length.
struct Replacement {
  char bytes[4] = {};
  std::uint8_t length = 1;
};

using EscapeTable = std::array<Replacement, 256>;

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

constexpr bool IsSearchTermByte(char byte) {
  return StaysInSearchTerm(static_cast<unsigned char>(byte)) != 0;
}

constexpr EscapeTable kSearchTermTable =
    EscapeAllBut(IsSearchTermByte, kLowerHexDigits);
constexpr EscapeTable kUriTable = EscapeAllBut(IsUriCharacter, kUpperHexDigits);

const Replacement& ReplacementOf(char byte, const EscapeTable& table) {
  return table[static_cast<unsigned char>(byte)];
}

std::size_t EscapedSize(std::string_view text, const EscapeTable& table) {
  std::size_t size = 0;
  for (const char byte : text) size += ReplacementOf(byte, table).length;
  return size;
}

/// The table applied to every byte. size: the result's, counted before: memory
/// that grows is touched more than once, which is most of the cost. The copy of
/// each byte has no branch: in running text a processor cannot predict which
/// byte is escaped.
std::string Escaped(std::string_view text, const EscapeTable& table,
                    std::size_t size) {
  constexpr std::size_t kCopiedAtOnce = sizeof Replacement::bytes;
  if (size == text.size()) return std::string(text);
  std::string out(size + kCopiedAtOnce, '\0');
  char* to = out.data();
  for (const char byte : text) {
    const Replacement& replacement = ReplacementOf(byte, table);
    std::memcpy(to, replacement.bytes, kCopiedAtOnce);
    to += replacement.length;
  }
  out.resize(size);
  return out;
}

}  // namespace

std::string LowerHexDigits(char byte) {
  char escape[3];
  WriteEscape(escape, byte, kLowerHexDigits);
  return {escape + 1, escape + 3};
}

std::string EscapeByte(char byte) {
  char escape[3];
  WriteEscape(escape, byte, kUpperHexDigits);
  return {escape, escape + 3};
}

std::string EncodeSearchTerm(std::string_view text) {
  // Lengths are signed 32-bit counts: 2 GiB and more count as negative.
  if (text.size() > std::numeric_limits<std::int32_t>::max()) return "";
  const std::size_t escaped = text.size() - CountStaying(text);
  return Escaped(text, kSearchTermTable, text.size() + 2 * escaped);
}

/// Goes from one "%" to the next: an escape is copied, and between two of them
/// the table decides alone.
std::string EscapeForUri(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const bool is_escape = IsPercentEscape(text);
    const std::size_t length =
        is_escape ? 3 : std::min(text.find('%', 1), text.size());
    const std::string_view piece = text.substr(0, length);
    if (is_escape) {
      out += piece;
    } else {
      out += Escaped(piece, kUriTable, EscapedSize(piece, kUriTable));
    }
    text.remove_prefix(length);
  }
  return out;
}

std::string EncodeUriComponent(std::string_view text) {
  const auto utf8 = DecodeText(text, TextEncoding::kUtf8);
  if (!utf8) return "";
  std::string escaped = EscapeForUri(*utf8);
  if (!FitsTextBuffer(escaped)) return "";
  return escaped;
}

}  // namespace velmohelp
