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

/// An ASCII letter or digit.
constexpr bool IsAsciiAlnum(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') ||
         (c >= 'a' && c <= 'z');
}

}  // namespace velmohelp

#endif  // UTIL_ASCII_H_
