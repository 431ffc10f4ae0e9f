// What can be measured in a process of its own, by name. Each sample prepares
// what it needs, and returns the nanoseconds of what it measures. A sample
// whose work has failed throws: a wrong answer is never fast.
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

/// A whole file. For what a sample is given, not for what it measures: nothing
/// that was touched for it is free again.
std::string Contents(const std::string& path);

}  // namespace velmohelp::bench

#endif  // BENCH_SPEED_SAMPLES_SAMPLES_H_
