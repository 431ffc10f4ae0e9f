// Medians of rotated candidates.
#ifndef BENCH_UNICODE_MEASURE_H_
#define BENCH_UNICODE_MEASURE_H_

#include <map>
#include <string>

#include "bench/unicode/tasks.h"

namespace velmohelp::bench {

/// Nanoseconds for one run of each candidate, by its name.
struct Medians {
  std::map<std::string, double> candidates;
  /// memset of the output; 0 where there is none.
  double floor = 0;
};

/// Runs all candidates in every round, each round in another order, so that no
/// one always pays for what its neighbour left in the cache (memset leaves the
/// whole output to be written back). Ends the program when a candidate fails or
/// they disagree on the size of the output.
Medians Measure(const Task& task, int rounds);

}  // namespace velmohelp::bench

#endif  // BENCH_UNICODE_MEASURE_H_
