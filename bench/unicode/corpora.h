// The texts that the converters are measured on, generated from a fixed seed.
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
/// and whole characters. Random words of random lengths: a branch predictor
/// would learn a short text that repeats.
std::vector<Corpus> MakeCorpora(std::size_t size);

}  // namespace velmohelp::bench

#endif  // BENCH_UNICODE_CORPORA_H_
