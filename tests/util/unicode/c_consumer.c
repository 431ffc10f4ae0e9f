/* The header and the shared library, used from C11 alone. */
#include <stddef.h>
#include <stdio.h>
#include <velmohelp/unicode.h>

_Static_assert(sizeof(ITEMUTF8) == 1, "bytes");
_Static_assert(sizeof(ITEMUTF16) == 2, "16-bit units");
_Static_assert(sizeof(ITEMUTF32) == 8, "64-bit units");

static int failures = 0;

static void Expect(bool condition, const char* what) {
  if (condition) return;
  failures += 1;
  fprintf(stderr, "failed: %s\n", what);
}

int main(void) {
  const ITEMUTF8 utf8[] = {'a', 0xC3, 0xA9, 0xF0, 0x9F, 0x98, 0x80};
  const ITEMUTF8* const utf8_end = utf8 + sizeof utf8;
  ITEMUTF16 utf16[4] = {0};
  ITEMUTF32 utf32[3] = {0};
  ITEMUTF8 back[sizeof utf8] = {0};

  const ITEMUTF8* from8 = utf8;
  ITEMUTF16* to16 = utf16;
  Expect(ITEMConvertUTF8toUTF16(&from8, utf8_end, &to16, utf16 + 4,
                                kConversionStrict) == kConversionComplete &&
             from8 == utf8_end && to16 == utf16 + 4 && utf16[3] == 0xDE00,
         "UTF-8 to UTF-16");

  const ITEMUTF16* from16 = utf16;
  ITEMUTF32* to32 = utf32;
  Expect(ITEMConvertUTF16toUTF32(&from16, utf16 + 4, &to32, utf32 + 3,
                                 kConversionStrict) == kConversionComplete &&
             utf32[2] == 0x1F600,
         "UTF-16 to UTF-32");

  const ITEMUTF32* from32 = utf32;
  ITEMUTF8* to8 = back;
  Expect(ITEMConvertUTF32toUTF8(&from32, utf32 + 3, &to8, back + sizeof back,
                                kConversionStrict) == kConversionComplete &&
             back[6] == 0x80,
         "UTF-32 to UTF-8");

  from16 = utf16;
  to8 = back;
  Expect(ITEMConvertUTF16toUTF8(&from16, utf16 + 4, &to8, back + 6,
                                kConversionLenient) ==
                 kConversionTargetExhausted &&
             from16 == utf16 + 2 && to8 == back + 3,
         "UTF-16 to UTF-8 without room for the last character");

  from8 = utf8;
  to32 = utf32;
  Expect(
      ITEMConvertUTF8toUTF32(&from8, utf8_end - 1, &to32, utf32 + 3,
                             kConversionStrict) == kConversionSourceExhausted &&
          from8 == utf8 + 3,
      "UTF-8 to UTF-32 of a cut text");

  from32 = utf32;
  to16 = utf16;
  utf32[1] = 0xD800;
  Expect(
      ITEMConvertUTF32toUTF16(&from32, utf32 + 3, &to16, utf16 + 4,
                              kConversionStrict) == kConversionSourceIllegal &&
          from32 == utf32 + 1,
      "UTF-32 to UTF-16 of a surrogate");

  Expect(ITEMisLegalUTF8String(utf8, utf8_end), "a legal string");
  Expect(!ITEMisLegalUTF8Sequence(utf8 + 2, utf8_end),
         "a sequence without a lead byte");
  return failures != 0;
}
