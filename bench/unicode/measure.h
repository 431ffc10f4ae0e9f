// Measures candidates in random order and takes medians.
#ifndef BENCH_UNICODE_MEASURE_H_
#define BENCH_UNICODE_MEASURE_H_

#include <map>
#include <string>

#include "bench/unicode/tasks.h"

namespace velmohelp::bench {

/// Nanoseconds per run of each candidate, by its name.
struct Medians {
  std::map<std::string, double> candidates;
  /// memset of the output; 0 where there is no output.
  double floor = 0;
};

/// Runs all candidates in every round, in a new order each time, so that none
/// always pays for what the one before left in the cache (memset leaves the
/// whole output to be written back). Ends the program when a candidate fails,
/// or when two disagree on the size of the output.
Medians Measure(const Task& task, int rounds);

}  // namespace velmohelp::bench

#endif  // BENCH_UNICODE_MEASURE_H_
