// ASCII letters and digits, in whatever locale the host runs.
#ifndef UTIL_ASCII_H_
#define UTIL_ASCII_H_

namespace velmohelp {

/// The value of a hexadecimal digit of either case, -1 for any other character.
constexpr int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

/// An ASCII letter.
constexpr bool IsAsciiAlpha(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// An ASCII letter or digit.
constexpr bool IsAsciiAlnum(char c) {
  return IsAsciiAlpha(c) || (c >= '0' && c <= '9');
}

}  // namespace velmohelp

#endif  // UTIL_ASCII_H_
