// The oracle of the converters: a second implementation, slow and obvious, one
// character at a time by the definitions.
#ifndef TESTS_SUPPORT_UNICODE_ORACLE_H_
#define TESTS_SUPPORT_UNICODE_ORACLE_H_

#include <velmohelp/unicode.h>

#include <cstddef>

namespace velmohelp::testing {

/// What a conversion did: its result, and how far each cursor moved.
struct Outcome {
  int result;
  std::size_t consumed;
  std::size_t produced;

  bool operator==(const Outcome&) const = default;
};

Outcome OracleUtf8To16(const ITEMUTF8* source, std::size_t size,
                       ITEMUTF16* target, std::size_t room, bool lenient);
Outcome OracleUtf8To32(const ITEMUTF8* source, std::size_t size,
                       ITEMUTF32* target, std::size_t room, bool lenient);
Outcome OracleUtf16To8(const ITEMUTF16* source, std::size_t size,
                       ITEMUTF8* target, std::size_t room, bool lenient);
Outcome OracleUtf16To32(const ITEMUTF16* source, std::size_t size,
                        ITEMUTF32* target, std::size_t room, bool lenient);
Outcome OracleUtf32To8(const ITEMUTF32* source, std::size_t size,
                       ITEMUTF8* target, std::size_t room, bool lenient);
Outcome OracleUtf32To16(const ITEMUTF32* source, std::size_t size,
                        ITEMUTF16* target, std::size_t room, bool lenient);

/// Length of the legal sequence at source; 0 when it is incomplete or illegal.
std::size_t OracleSequence(const ITEMUTF8* source, std::size_t size);
bool OracleIsLegal(const ITEMUTF8* source, std::size_t size);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_UNICODE_ORACLE_H_
