/* Conversion between UTF-8, UTF-16 and UTF-32, and a test for legal UTF-8.
 *
 * Conventions of this interface, for C11 and C++20 callers alike:
 *
 *  1. A converter takes the address of the source cursor, the end of the
 *     source, the address of the target cursor and the end of the target. It
 *     moves both cursors past what it has converted. An end points one unit
 *     past the last.
 *  2. A converter always stops between two characters: the source cursor is at
 *     the first unit of the character that was not converted, the target cursor
 *     after the last unit written. On return the target is unchanged from there
 *     on; during the call the converter may use all of it.
 *  3. flag: 0 is strict, any other value is lenient.
 *  4. A range that starts at null or after its end counts as empty: an empty
 *     source is complete at once, an empty target has no room. The address of a
 *     cursor is never null. Source and target do not overlap.
 *  5. No function allocates, throws, keeps a pointer or touches shared state;
 *     all may be called from any number of threads.
 *
 * Where this differs from other converters, on purpose:
 *
 *   - A UTF-32 unit has 64 bits.
 *   - Surrogates are legal in UTF-8: ED A0 80 to ED BF BF pass the legality
 *     test. C0, C1 and F5 to FF never do.
 *   - Illegal UTF-8 stops a conversion in lenient mode too; it is never
 *     replaced. Lenient mode passes surrogates on, unchanged.
 *   - A UTF-16 source is never "exhausted": a high surrogate at its end is
 *     converted like any other unit, in strict mode too. A caller that converts
 *     in pieces has to hold such a unit back itself.
 *   - UTF-32 from 0x110000 to 0x1FFFFF becomes four bytes of UTF-8, and from
 *     0x200000 on the two bytes FF BD, in both modes. Neither is legal UTF-8.
 */
#ifndef VELMOHELP_UNICODE_H_
#define VELMOHELP_UNICODE_H_

#include <velmohelp/export.h>

#ifdef __cplusplus
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>
#else
#include <stdbool.h>
#include <stdint.h>
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef uint8_t ITEMUTF8;
typedef uint16_t ITEMUTF16;
typedef unsigned long ITEMUTF32; /* 64 bits, 8 bytes in a buffer */

/* What a converter returns. */
typedef enum ITEMConversionResult {
  kConversionComplete = 0,        /* the whole source was converted */
  kConversionSourceExhausted = 1, /* UTF-8 only: the lead byte announces more
                                     bytes than the source has; those that are
                                     there have not been checked */
  kConversionTargetExhausted = 2, /* the next character does not fit */
  kConversionSourceIllegal = 3    /* see each converter */
} ITEMConversionResult;

/* The two modes: values for the flag. */
enum ITEMConversionFlag { kConversionStrict = 0, kConversionLenient = 1 };

/* From UTF-8, to both targets: checks that the source has the whole sequence
 * (else 1), then that the sequence is legal (else 3), then that the target has
 * room (else 2). */

/* Writes a surrogate pair from U+10000 on, whole or not at all.
 * 3: an illegal sequence; in strict mode also a surrogate, which lenient mode
 * writes unchanged. The surrogate is refused last: where the target is full,
 * the result is 2. */
VELMOHELP_API ITEMConversionResult
ITEMConvertUTF8toUTF16(const ITEMUTF8** source, const ITEMUTF8* sourceEnd,
                       ITEMUTF16** target, ITEMUTF16* targetEnd, int flag);

/* 3: an illegal sequence. Ignores the flag: writes surrogates unchanged in
 * strict mode too. */
VELMOHELP_API ITEMConversionResult
ITEMConvertUTF8toUTF32(const ITEMUTF8** source, const ITEMUTF8* sourceEnd,
                       ITEMUTF32** target, ITEMUTF32* targetEnd, int flag);

/* From UTF-16, to both targets: a high surrogate and the low surrogate after it
 * are one character.
 * 3, in strict mode: a low surrogate that follows no high one, or a high one
 * that is followed by anything else; lenient mode converts either on its own. A
 * high surrogate that is the last unit of the source is converted on its own in
 * both modes. 3 comes before 2. */

VELMOHELP_API ITEMConversionResult
ITEMConvertUTF16toUTF8(const ITEMUTF16** source, const ITEMUTF16* sourceEnd,
                       ITEMUTF8** target, ITEMUTF8* targetEnd, int flag);

VELMOHELP_API ITEMConversionResult
ITEMConvertUTF16toUTF32(const ITEMUTF16** source, const ITEMUTF16* sourceEnd,
                        ITEMUTF32** target, ITEMUTF32* targetEnd, int flag);

/* Checks that the target has room for a unit (else 2) before it looks at the
 * value, even at one that it would skip.
 * Strict mode stops with 3 at a surrogate. It skips a value of 0x110000 or more
 * and goes on; the call then ends with 3 and the source cursor at the end,
 * unless something later stops it with 2 or 3.
 * Lenient mode writes a surrogate unchanged and U+FFFD for 0x110000 or more. */
VELMOHELP_API ITEMConversionResult
ITEMConvertUTF32toUTF16(const ITEMUTF32** source, const ITEMUTF32* sourceEnd,
                        ITEMUTF16** target, ITEMUTF16* targetEnd, int flag);

/* Strict mode stops with 3 at a surrogate, even where the target is full;
 * lenient mode writes its three bytes. Writes four bytes from 0x10000 on, FF BD
 * from 0x200000 on. */
VELMOHELP_API ITEMConversionResult
ITEMConvertUTF32toUTF8(const ITEMUTF32** source, const ITEMUTF32* sourceEnd,
                       ITEMUTF8** target, ITEMUTF8* targetEnd, int flag);

/* Whether the sequence that begins at source ends before or at sourceEnd and is
 * legal. Does not look at what follows it. False for an empty range. */
VELMOHELP_API bool ITEMisLegalUTF8Sequence(const ITEMUTF8* source,
                                           const ITEMUTF8* sourceEnd);

/* Whether the whole range is legal UTF-8. True for an empty range, also of two
 * null pointers; false when source is after sourceEnd, and when only one of the
 * two is null. */
VELMOHELP_API bool ITEMisLegalUTF8String(const ITEMUTF8* source,
                                         const ITEMUTF8* sourceEnd);

#ifdef __cplusplus
} /* extern "C" */

namespace ITEMInternal::velmo::gen {

/// What convert_utf throws. what() is one of
///   "Empty target buffer.", "Bad UTF-16 sequence.", "Bad UTF-8 sequence." and
///   "UTF-8 seqence is not complete." (spelt like this: hosts compare it).
class VELMOHELP_API illegal_utf_sequence : public std::runtime_error {
 public:
  explicit illegal_utf_sequence(const std::string& message);
  illegal_utf_sequence(const illegal_utf_sequence&) = default;
  illegal_utf_sequence& operator=(const illegal_utf_sequence&) = default;
  ~illegal_utf_sequence() override;
};

// A wide string holds one UTF-16 unit per wide character: on the way in,
// everything above the low 16 bits is cut off, and characters above U+FFFF come
// out as two wide characters. lenient: true is the converters' lenient mode.
//
// The two bounded forms return the positions that they reached in source and
// target; an incomplete source and a full target are not errors. They throw
// illegal_utf_sequence when the source has something and the target is empty,
// and at an illegal sequence, however much before it has been converted. They
// allocate a buffer for the remaining source (wide to UTF-8) or the target
// (UTF-8 to wide), so they may throw std::bad_alloc. After either exception the
// target may have been written in part. A range that starts after its end is
// empty.

VELMOHELP_API std::pair<const wchar_t*, char*> convert_utf(const wchar_t* first,
                                                           const wchar_t* last,
                                                           char* dfirst,
                                                           char* dlast,
                                                           bool lenient);

VELMOHELP_API std::pair<const char*, wchar_t*> convert_utf(const char* first,
                                                           const char* last,
                                                           wchar_t* dfirst,
                                                           wchar_t* dlast,
                                                           bool lenient);

/// Converts a whole string, in pieces of 256 target units. Exists for
/// <std::string, std::wstring> and <std::wstring, std::string> only. Throws as
/// above, and "UTF-8 seqence is not complete." when the source ends inside a
/// sequence.
///
/// From wide, each piece copies all that remains of the source, so the cost
/// grows with the square of the length.
template <typename Result, typename Source>
VELMOHELP_API Result convert_utf(const Source& source, bool lenient);

extern template VELMOHELP_API std::string
convert_utf<std::string, std::wstring>(const std::wstring&, bool);
extern template VELMOHELP_API std::wstring
convert_utf<std::wstring, std::string>(const std::string&, bool);

}  // namespace ITEMInternal::velmo::gen
#endif

#endif /* VELMOHELP_UNICODE_H_ */
