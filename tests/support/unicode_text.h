// Texts for the converters: every script that differs for them, and worse.
#ifndef TESTS_SUPPORT_UNICODE_TEXT_H_
#define TESTS_SUPPORT_UNICODE_TEXT_H_

#include <velmohelp/unicode.h>

#include <random>
#include <vector>

namespace velmohelp::testing {

/// What a mixture may hold.
enum class Purity { kWellFormed, kSurrogates, kAnything };

/// Runs of values of one kind each, of lengths that the generator draws; about
/// size of them. kAnything has values that are no code points, kSurrogates has
/// surrogates, kWellFormed neither.
std::vector<ITEMUTF32> MixedValues(std::mt19937& random, std::size_t size,
                                   Purity purity);

/// The same as UTF-8 and UTF-16. kAnything has stray and missing units.
std::vector<ITEMUTF8> MixedUtf8(std::mt19937& random, std::size_t size,
                                Purity purity);
std::vector<ITEMUTF16> MixedUtf16(std::mt19937& random, std::size_t size,
                                  Purity purity);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_UNICODE_TEXT_H_
