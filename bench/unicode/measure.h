// What one task costs each candidate.
#ifndef BENCH_UNICODE_MEASURE_H_
#define BENCH_UNICODE_MEASURE_H_

#include <map>
#include <string>

#include "bench/unicode/tasks.h"

namespace velmohelp::bench {

/// Nanoseconds for one run of each candidate, by its name.
struct Medians {
  std::map<std::string, double> candidates;
  /// memset of the output; 0 for a task without output.
  double floor = 0;
};

/// Ends the program when a candidate fails or they disagree on the size of the
/// output.
Medians Measure(const Task& task, int rounds);

}  // namespace velmohelp::bench

#endif  // BENCH_UNICODE_MEASURE_H_
