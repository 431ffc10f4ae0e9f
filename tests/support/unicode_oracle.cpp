#include "tests/support/unicode_oracle.h"

namespace velmohelp::testing {
namespace {

enum { kComplete, kSourceExhausted, kTargetExhausted, kIllegal };

bool IsHigh(ITEMUTF32 c) { return c >= 0xD800 && c <= 0xDBFF; }
bool IsLow(ITEMUTF32 c) { return c >= 0xDC00 && c <= 0xDFFF; }

/// The length that a lead byte announces; 1 for any other byte.
std::size_t Announced(ITEMUTF8 lead) {
  if (lead >= 0xFC) return 6;
  if (lead >= 0xF8) return 5;
  if (lead >= 0xF0) return 4;
  if (lead >= 0xE0) return 3;
  if (lead >= 0xC0) return 2;
  return 1;
}

/// The number in the payload bits of a sequence.
ITEMUTF32 Payload(const ITEMUTF8* source, std::size_t length) {
  if (length == 1) return source[0];
  ITEMUTF32 value = source[0] % (1U << (7 - length));
  for (std::size_t i = 1; i < length; ++i) value = value * 64 + source[i] % 64;
  return value;
}

/// Legal: at most four bytes, trailing bytes where they belong, no longer than
/// the character needs, and up to U+10FFFF.
bool IsLegal(const ITEMUTF8* source, std::size_t length) {
  if (length == 1) return source[0] < 0x80;
  if (length > 4) return false;
  for (std::size_t i = 1; i < length; ++i) {
    if (source[i] / 64 != 2) return false;
  }
  const ITEMUTF32 value = Payload(source, length);
  const ITEMUTF32 least = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
  return value >= least && value <= 0x10FFFF;
}

/// The units of one character.
struct Units {
  std::size_t count;
  ITEMUTF32 unit[4];
};

template <typename Unit>
int Write(const Units& units, Unit* target, std::size_t room,
          Outcome& outcome) {
  if (room - outcome.produced < units.count) return kTargetExhausted;
  for (std::size_t i = 0; i < units.count; ++i) {
    target[outcome.produced++] = static_cast<Unit>(units.unit[i]);
  }
  return kComplete;
}

Units Utf16Units(ITEMUTF32 c) {
  if (c < 0x10000) return {1, {c}};
  return {2, {0xD800 + (c - 0x10000) / 0x400, 0xDC00 + (c - 0x10000) % 0x400}};
}

Units Utf8Units(ITEMUTF32 c) {
  if (c < 0x80) return {1, {c}};
  if (c < 0x800) return {2, {0xC0 + c / 64, 0x80 + c % 64}};
  if (c < 0x10000) {
    return {3, {0xE0 + c / 4096, 0x80 + c / 64 % 64, 0x80 + c % 64}};
  }
  if (c < 0x200000) {
    return {4,
            {0xF0 + c / 262144, 0x80 + c / 4096 % 64, 0x80 + c / 64 % 64,
             0x80 + c % 64}};
  }
  return {2, {0xFF, 0xBD}};
}

/// Reads one character. Sets its length, for the caller to consume.
int Read(const ITEMUTF8* source, std::size_t size, ITEMUTF32& c,
         std::size_t& length) {
  length = Announced(source[0]);
  if (length > size) return kSourceExhausted;
  if (!IsLegal(source, length)) return kIllegal;
  c = Payload(source, length);
  return kComplete;
}

int Read(const ITEMUTF16* source, std::size_t size, bool lenient, ITEMUTF32& c,
         std::size_t& length) {
  c = source[0];
  length = 1;
  if (IsHigh(c) && size == 1) return kComplete;
  if (IsHigh(c) && IsLow(source[1])) {
    c = 0x10000 + (c - 0xD800) * 0x400 + (source[1] - 0xDC00U);
    length = 2;
    return kComplete;
  }
  return (IsHigh(c) || IsLow(c)) && !lenient ? kIllegal : kComplete;
}

}  // namespace

Outcome OracleUtf8To16(const ITEMUTF8* source, std::size_t size,
                       ITEMUTF16* target, std::size_t room, bool lenient) {
  Outcome o{kComplete, 0, 0};
  while (o.consumed < size) {
    ITEMUTF32 c = 0;
    std::size_t length = 0;
    o.result = Read(source + o.consumed, size - o.consumed, c, length);
    if (o.result == kComplete && o.produced == room) {
      o.result = kTargetExhausted;
    } else if (o.result == kComplete && !lenient && (IsHigh(c) || IsLow(c))) {
      o.result = kIllegal;
    }
    if (o.result == kComplete) o.result = Write(Utf16Units(c), target, room, o);
    if (o.result != kComplete) break;
    o.consumed += length;
  }
  return o;
}

Outcome OracleUtf8To32(const ITEMUTF8* source, std::size_t size,
                       ITEMUTF32* target, std::size_t room, bool /*lenient*/) {
  Outcome o{kComplete, 0, 0};
  while (o.consumed < size) {
    ITEMUTF32 c = 0;
    std::size_t length = 0;
    o.result = Read(source + o.consumed, size - o.consumed, c, length);
    if (o.result == kComplete) o.result = Write({1, {c}}, target, room, o);
    if (o.result != kComplete) break;
    o.consumed += length;
  }
  return o;
}

Outcome OracleUtf16To8(const ITEMUTF16* source, std::size_t size,
                       ITEMUTF8* target, std::size_t room, bool lenient) {
  Outcome o{kComplete, 0, 0};
  while (o.consumed < size) {
    ITEMUTF32 c = 0;
    std::size_t length = 0;
    o.result = Read(source + o.consumed, size - o.consumed, lenient, c, length);
    if (o.result == kComplete) o.result = Write(Utf8Units(c), target, room, o);
    if (o.result != kComplete) break;
    o.consumed += length;
  }
  return o;
}

Outcome OracleUtf16To32(const ITEMUTF16* source, std::size_t size,
                        ITEMUTF32* target, std::size_t room, bool lenient) {
  Outcome o{kComplete, 0, 0};
  while (o.consumed < size) {
    ITEMUTF32 c = 0;
    std::size_t length = 0;
    o.result = Read(source + o.consumed, size - o.consumed, lenient, c, length);
    if (o.result == kComplete) o.result = Write({1, {c}}, target, room, o);
    if (o.result != kComplete) break;
    o.consumed += length;
  }
  return o;
}

Outcome OracleUtf32To8(const ITEMUTF32* source, std::size_t size,
                       ITEMUTF8* target, std::size_t room, bool lenient) {
  Outcome o{kComplete, 0, 0};
  while (o.consumed < size) {
    const ITEMUTF32 c = source[o.consumed];
    if (!lenient && (IsHigh(c) || IsLow(c))) {
      o.result = kIllegal;
    } else {
      o.result = Write(Utf8Units(c), target, room, o);
    }
    if (o.result != kComplete) break;
    ++o.consumed;
  }
  return o;
}

Outcome OracleUtf32To16(const ITEMUTF32* source, std::size_t size,
                        ITEMUTF16* target, std::size_t room, bool lenient) {
  Outcome o{kComplete, 0, 0};
  bool skipped = false;
  for (; o.consumed < size && o.result == kComplete; ++o.consumed) {
    const ITEMUTF32 c = source[o.consumed];
    if (o.produced == room) {
      o.result = kTargetExhausted;
    } else if (c >= 0x110000 && !lenient) {
      skipped = true;
    } else if (!lenient && (IsHigh(c) || IsLow(c))) {
      o.result = kIllegal;
    } else if (c >= 0x110000) {
      o.result = Write({1, {0xFFFD}}, target, room, o);
    } else {
      o.result = Write(Utf16Units(c), target, room, o);
    }
  }
  if (o.result != kComplete) --o.consumed;
  if (o.result == kComplete && skipped) o.result = kIllegal;
  return o;
}

std::size_t OracleSequence(const ITEMUTF8* source, std::size_t size) {
  ITEMUTF32 c = 0;
  std::size_t length = 0;
  if (size == 0 || Read(source, size, c, length) != kComplete) return 0;
  return length;
}

bool OracleIsLegal(const ITEMUTF8* source, std::size_t size) {
  std::size_t at = 0;
  while (at < size) {
    const std::size_t length = OracleSequence(source + at, size - at);
    if (length == 0) return false;
    at += length;
  }
  return true;
}

}  // namespace velmohelp::testing
