// The samples by name; each runs in a process of its own. A sample prepares
// what it needs and returns the nanoseconds of what it measures. It throws when
// its work fails: a wrong result is never fast.
#ifndef BENCH_SPEED_SAMPLES_SAMPLES_H_
#define BENCH_SPEED_SAMPLES_SAMPLES_H_

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmohelp::bench {

using Words = std::vector<std::string>;
using Samples = std::map<std::string, std::function<double(const Words&)>>;

Samples RequestSamples();
Samples MapSamples();
Samples TextSamples();

inline void Require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

/// A whole file, for the preparation of a sample. Frees nothing that it has
/// touched, which would make the measured work look cheap.
std::string Contents(const std::string& path);

}  // namespace velmohelp::bench

#endif  // BENCH_SPEED_SAMPLES_SAMPLES_H_
