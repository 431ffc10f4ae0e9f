// Which bytes a search term's encoding leaves as they are.
#ifndef UTIL_SEARCH_TERM_H_
#define UTIL_SEARCH_TERM_H_

#include <cstddef>
#include <string_view>

namespace velmohelp {

/// An ASCII letter or digit, or one of "'()*!~"; "-", "_" and "." are escaped,
/// as search pages expect. Bytes: one byte, or a vector of them, which is why
/// the test has no branch.
template <typename Bytes>
constexpr auto StaysInSearchTerm(Bytes byte) {
  const auto letter = Bytes(Bytes(byte | ' ') - 'a') <= 'z' - 'a';
  const auto digit = Bytes(byte - '0') <= '9' - '0';
  const auto quote_to_asterisk = Bytes(byte - '\'') <= '*' - '\'';
  return letter | digit | quote_to_asterisk | (byte == '!') | (byte == '~');
}

/// How many bytes of a text stay.
std::size_t CountStaying(std::string_view text);

}  // namespace velmohelp

#endif  // UTIL_SEARCH_TERM_H_
