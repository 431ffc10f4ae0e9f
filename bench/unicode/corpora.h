// The texts that the converters are measured on, made here from a fixed seed.
#ifndef BENCH_UNICODE_CORPORA_H_
#define BENCH_UNICODE_CORPORA_H_

#include <cstddef>
#include <string>
#include <vector>

namespace velmohelp::bench {

/// A text of one kind, as UTF-8.
struct Corpus {
  std::string name;
  std::string utf8;
};

/// ASCII, Latin, Cyrillic, CJK, emoji and HTML text, each of at most size bytes
/// and whole characters. Words and their lengths follow a generator, not a
/// short text over and over, which a branch predictor would learn by heart.
std::vector<Corpus> MakeCorpora(std::size_t size);

}  // namespace velmohelp::bench

#endif  // BENCH_UNICODE_CORPORA_H_
