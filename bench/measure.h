// How both benchmarks compare: medians of candidates that take turns.
#ifndef BENCH_MEASURE_H_
#define BENCH_MEASURE_H_

#include <functional>
#include <vector>

namespace velmohelp::bench {

/// Does a job once and returns what it cost, as a rule in nanoseconds.
using Reading = std::function<double()>;

/// Takes a reading of every candidate in every round, each round in another
/// order, so that none always pays for what its neighbour left in the caches.
/// Returns the median of each candidate. The orders are the same in every run.
std::vector<double> Measure(const std::vector<Reading>& candidates, int rounds);

}  // namespace velmohelp::bench

#endif  // BENCH_MEASURE_H_
