#include "util/utf8.h"

namespace velmohelp {
namespace {

/// The bytes that may follow a lead byte: how many, and the bounds of the
/// first of them (RFC 3629, section 4); the others lie in 0x80 to 0xBF.
struct Tail {
  std::size_t length;
  unsigned char first_min;
  unsigned char first_max;
};

constexpr Tail kNotALead{static_cast<std::size_t>(-1), 0, 0};

Tail TailOf(unsigned char lead) {
  if (lead < 0x80) return {0, 0, 0};
  if (lead < 0xC2) return kNotALead;
  if (lead < 0xE0) return {1, 0x80, 0xBF};
  if (lead == 0xE0) return {2, 0xA0, 0xBF};
  if (lead == 0xED) return {2, 0x80, 0x9F};
  if (lead < 0xF0) return {2, 0x80, 0xBF};
  if (lead == 0xF0) return {3, 0x90, 0xBF};
  if (lead < 0xF4) return {3, 0x80, 0xBF};
  if (lead == 0xF4) return {3, 0x80, 0x8F};
  return kNotALead;
}

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// The length of the character at the start of text, 0 when there is none.
std::size_t CharacterLength(std::string_view text) {
  const Tail tail = TailOf(static_cast<unsigned char>(text[0]));
  if (tail.length >= text.size()) return 0;
  if (tail.length == 0) return 1;
  const auto first = static_cast<unsigned char>(text[1]);
  if (first < tail.first_min || first > tail.first_max) return 0;
  for (std::size_t i = 2; i <= tail.length; ++i) {
    if (!IsContinuation(text[i])) return 0;
  }
  return tail.length + 1;
}

}  // namespace

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::size_t Utf16Length(std::string_view text) {
  std::size_t units = 0;
  for (const char byte : text) {
    if (!IsContinuation(byte)) ++units;
    if (static_cast<unsigned char>(byte) >= 0xF0) ++units;  // a surrogate pair
  }
  return units;
}

}  // namespace velmohelp
