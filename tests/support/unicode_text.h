// Random texts for the converters: every script that they treat differently,
// and damaged text.
#ifndef TESTS_SUPPORT_UNICODE_TEXT_H_
#define TESTS_SUPPORT_UNICODE_TEXT_H_

#include <velmohelp/unicode.h>

#include <random>
#include <vector>

namespace velmohelp::testing {

/// What a text may hold.
enum class Purity { kWellFormed, kSurrogates, kAnything };

/// size values, in runs of one kind each. kSurrogates includes surrogates,
/// kAnything also values above 0x10FFFF, kWellFormed neither.
std::vector<ITEMUTF32> MixedValues(std::mt19937& random, std::size_t size,
                                   Purity purity);

/// The same as UTF-8 and UTF-16. kAnything also has stray and missing units.
std::vector<ITEMUTF8> MixedUtf8(std::mt19937& random, std::size_t size,
                                Purity purity);
std::vector<ITEMUTF16> MixedUtf16(std::mt19937& random, std::size_t size,
                                  Purity purity);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_UNICODE_TEXT_H_
