#include "util/mac_roman.h"

#include <algorithm>
#include <array>

namespace velmohelp {
namespace {

constexpr unsigned char kFirstUpper = 0x80;

/// The characters of bytes 0x80 to 0xFF, in UTF-8. Source: the character
/// set's mapping table in the Unicode Character Database's vendor mappings
/// (the lower half is ASCII).
constexpr std::array<std::string_view, 128> kUpperHalf = {
    "Ä",
    "Å",
    "Ç",
    "É",
    "Ñ",
    "Ö",
    "Ü",
    "á",
    "à",
    "â",
    "ä",
    "ã",
    "å",
    "ç",
    "é",
    "è",
    "ê",
    "ë",
    "í",
    "ì",
    "î",
    "ï",
    "ñ",
    "ó",
    "ò",
    "ô",
    "ö",
    "õ",
    "ú",
    "ù",
    "û",
    "ü",
    "†",
    "°",
    "¢",
    "£",
    "§",
    "•",
    "¶",
    "ß",
    "®",
    "©",
    "™",
    "´",
    "¨",
    "≠",
    "Æ",
    "Ø",
    "∞",
    "±",
    "≤",
    "≥",
    "¥",
    "µ",
    "∂",
    "∑",
    "∏",
    "π",
    "∫",
    "ª",
    "º",
    "Ω",
    "æ",
    "ø",
    "¿",
    "¡",
    "¬",
    "√",
    "ƒ",
    "≈",
    "∆",
    "«",
    "»",
    "…",
    "\xC2\xA0",
    "À",
    "Ã",
    "Õ",
    "Œ",
    "œ",
    "–",
    "—",
    "“",
    "”",
    "‘",
    "’",
    "÷",
    "◊",
    "ÿ",
    "Ÿ",
    "⁄",
    "€",
    "‹",
    "›",
    "ﬁ",
    "ﬂ",
    "‡",
    "·",
    "‚",
    "„",
    "‰",
    "Â",
    "Ê",
    "Á",
    "Ë",
    "È",
    "Í",
    "Î",
    "Ï",
    "Ì",
    "Ó",
    "Ô",
    "\xEF\xA3\xBF",
    "Ò",
    "Ú",
    "Û",
    "Ù",
    "ı",
    "ˆ",
    "˜",
    "¯",
    "˘",
    "˙",
    "˚",
    "¸",
    "˝",
    "˛",
    "ˇ",
};

/// Removes the first character from text and returns it.
std::string_view PopCharacter(std::string_view& text) {
  std::size_t length = 1;
  while (length < text.size() &&
         (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) {
    ++length;
  }
  const std::string_view character = text.substr(0, length);
  text.remove_prefix(length);
  return character;
}

}  // namespace

std::string MacRomanToUtf8(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < kFirstUpper) {
      text += c;
    } else {
      text += kUpperHalf[byte - kFirstUpper];
    }
  }
  return text;
}

std::optional<std::string> Utf8ToMacRoman(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const std::string_view character = PopCharacter(text);
    if (character.size() == 1) {
      bytes += character;
      continue;
    }
    const auto* found =
        std::find(kUpperHalf.begin(), kUpperHalf.end(), character);
    if (found == kUpperHalf.end()) return std::nullopt;
    bytes += static_cast<char>(kFirstUpper + (found - kUpperHalf.begin()));
  }
  return bytes;
}

}  // namespace velmohelp
