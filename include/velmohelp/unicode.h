/* Conversion between UTF-8, UTF-16 and UTF-32, and legality of UTF-8.
 *
 * Conventions of this interface, for C11 and C++20 callers alike:
 *
 *  1. A converter takes the address of the source cursor, the source's end, the
 *     address of the target cursor and the target's end, and moves both cursors
 *     over what it has converted. Ends point one unit behind the last.
 *  2. A stop is always between two characters: the source cursor stands at the
 *     first unit of the character that was not converted, the target cursor
 *     behind the last unit written. On return nothing at or behind it has
 *     changed; until then the room up to the target's end is the converter's.
 *  3. flag: 0 is strict, any other value is lenient.
 *  4. A range whose start is null or lies behind its end counts as empty: an
 *     empty source is complete at once, an empty target has no room. A cursor's
 *     address is never null. Source and target do not overlap.
 *  5. No function allocates, throws, keeps a pointer or touches shared state;
 *     all may be called from any number of threads.
 *
 * Where this differs from what one expects of a converter today, on purpose:
 *
 *   - A UTF-32 unit has 64 bits.
 *   - The legality of UTF-8 does not concern surrogates: ED A0 80 to ED BF BF
 *     are legal, and C0, C1, F5 to FF never are.
 *   - Illegal UTF-8 stops a conversion in lenient mode too; it is never
 *     replaced. Lenient mode passes surrogates, unchanged.
 *   - UTF-16 is never "exhausted": a high surrogate that ends the source is
 *     converted as it stands, in strict mode too. A caller that feeds pieces
 *     keeps such a unit back itself.
 *   - UTF-32 from 0x110000 to 0x1FFFFF gives four bytes of UTF-8, and from
 *     0x200000 the two bytes FF BD, in both modes. Neither is legal UTF-8.
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

/* What a converter answers. */
typedef enum ITEMConversionResult {
  kConversionComplete = 0,        /* the whole source was converted */
  kConversionSourceExhausted = 1, /* UTF-8 only: the source ends inside a
                                     sequence, by its lead byte; the bytes that
                                     are there have not been judged */
  kConversionTargetExhausted = 2, /* the next character does not fit */
  kConversionSourceIllegal = 3    /* see each converter */
} ITEMConversionResult;

/* The values of the flag that have a name. */
enum ITEMConversionFlag { kConversionStrict = 0, kConversionLenient = 1 };

/* UTF-8 decoding, both targets: the end of the source is looked for first (1),
 * then the sequence must be legal (else 3), then it must fit (else 2). */

/* From U+10000 on a pair of units, whole or not at all.
 * 3: an illegal sequence; in strict mode also a surrogate, which lenient mode
 * writes unchanged. A full target is reported (2) before a strict surrogate. */
VELMOHELP_API ITEMConversionResult
ITEMConvertUTF8toUTF16(const ITEMUTF8** source, const ITEMUTF8* sourceEnd,
                       ITEMUTF16** target, ITEMUTF16* targetEnd, int flag);

/* 3: an illegal sequence. The flag is ignored: surrogates are written unchanged
 * in strict mode too. */
VELMOHELP_API ITEMConversionResult
ITEMConvertUTF8toUTF32(const ITEMUTF8** source, const ITEMUTF8* sourceEnd,
                       ITEMUTF32** target, ITEMUTF32* targetEnd, int flag);

/* UTF-16 decoding, both targets: a high and a low surrogate together are one
 * character.
 * 3, in strict mode: a low surrogate that no high one precedes, or a high one
 * that something else follows; lenient mode takes either as it stands. A high
 * surrogate that is the source's last unit is taken as it stands in both. */

VELMOHELP_API ITEMConversionResult
ITEMConvertUTF16toUTF8(const ITEMUTF16** source, const ITEMUTF16* sourceEnd,
                       ITEMUTF8** target, ITEMUTF8* targetEnd, int flag);

VELMOHELP_API ITEMConversionResult
ITEMConvertUTF16toUTF32(const ITEMUTF16** source, const ITEMUTF16* sourceEnd,
                        ITEMUTF32** target, ITEMUTF32* targetEnd, int flag);

/* A full target is reported (2) before the value is looked at.
 * Strict mode stops with 3 at a surrogate. It skips a value of 0x110000 or
 * more and goes on; the call then ends with 3, source at its end, unless it
 * stops earlier with 2 or 3 of its own.
 * Lenient mode writes a surrogate unchanged and U+FFFD for 0x110000 or more. */
VELMOHELP_API ITEMConversionResult
ITEMConvertUTF32toUTF16(const ITEMUTF32** source, const ITEMUTF32* sourceEnd,
                        ITEMUTF16** target, ITEMUTF16* targetEnd, int flag);

/* Strict mode stops with 3 at a surrogate, lenient mode writes its three bytes.
 * Four bytes from 0x10000 on, FF BD from 0x200000 on. */
VELMOHELP_API ITEMConversionResult
ITEMConvertUTF32toUTF8(const ITEMUTF32** source, const ITEMUTF32* sourceEnd,
                       ITEMUTF8** target, ITEMUTF8* targetEnd, int flag);

/* Whether the one sequence that begins at source lies before sourceEnd as a
 * whole and is legal; what follows it is not looked at. False for an empty
 * range. */
VELMOHELP_API bool ITEMisLegalUTF8Sequence(const ITEMUTF8* source,
                                           const ITEMUTF8* sourceEnd);

/* Whether the whole range is legal UTF-8, as far as legality goes here. True
 * for an empty range, two nulls too; false when source lies behind sourceEnd,
 * and when it alone is null. */
VELMOHELP_API bool ITEMisLegalUTF8String(const ITEMUTF8* source,
                                         const ITEMUTF8* sourceEnd);

#ifdef __cplusplus
} /* extern "C" */

namespace ITEMInternal::velmo::gen {

/// What convert_utf throws. what() is one of
///   "Empty target buffer.", "Bad UTF-16 sequence.", "Bad UTF-8 sequence." and
///   "UTF-8 seqence is not complete." (spelt like this; hosts compare it).
class VELMOHELP_API illegal_utf_sequence : public std::runtime_error {
 public:
  explicit illegal_utf_sequence(const std::string& message);
  illegal_utf_sequence(const illegal_utf_sequence&) = default;
  illegal_utf_sequence& operator=(const illegal_utf_sequence&) = default;
  ~illegal_utf_sequence() override;
};

// A wide text holds UTF-16 units, one in each wide character: what lies above
// 0xFFFF is cut to its low 16 bits on the way in, and characters above U+FFFF
// come out as two wide characters. lenient: as the converters' flag.
//
// The two bounded forms return the source and the target position reached; an
// incomplete source and a full target are not errors. They allocate a buffer
// for the remaining source (wide to UTF-8) or the target (UTF-8 to wide), so
// they may throw std::bad_alloc; the target may then have been left untouched
// or partly written. Throw illegal_utf_sequence when the target is empty and
// the source is not, and for an illegal sequence, however much before it has
// been converted. A range whose start lies behind its end is empty.

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

/// A whole text, in pieces of 256 target units; to be had for <std::string,
/// std::wstring> and <std::wstring, std::string> only. Throws as above, and
/// "UTF-8 seqence is not complete." when a source ends inside a sequence.
///
/// From wide, each piece copies all that remains of the source: the cost grows
/// with the square of the length.
template <typename Result, typename Source>
VELMOHELP_API Result convert_utf(const Source& source, bool lenient);

extern template VELMOHELP_API std::string
convert_utf<std::string, std::wstring>(const std::wstring&, bool);
extern template VELMOHELP_API std::wstring
convert_utf<std::wstring, std::string>(const std::string&, bool);

}  // namespace ITEMInternal::velmo::gen
#endif

#endif /* VELMOHELP_UNICODE_H_ */
