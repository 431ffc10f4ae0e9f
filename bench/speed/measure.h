// Medians of rotated candidates, each reading from a process of its own.
#ifndef BENCH_SPEED_MEASURE_H_
#define BENCH_SPEED_MEASURE_H_

#include <string>
#include <vector>

namespace velmohelp::bench {

using Words = std::vector<std::string>;

/// One way of doing a job: a program, run afresh for every reading, that prints
/// one number, as a rule nanoseconds.
struct Candidate {
  std::string name;
  Words command;
};

/// Runs all candidates in every round, each round with another one first, so
/// that no one always finds the machine as its neighbour left it. Returns the
/// median of each. Ends this program when a candidate fails.
std::vector<double> Measure(const std::vector<Candidate>& candidates,
                            int rounds);

}  // namespace velmohelp::bench

#endif  // BENCH_SPEED_MEASURE_H_
