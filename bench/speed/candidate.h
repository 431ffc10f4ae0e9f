// What is compared: programs that each print one reading.
#ifndef BENCH_SPEED_CANDIDATE_H_
#define BENCH_SPEED_CANDIDATE_H_

#include <string>
#include <vector>

namespace velmohelp::bench {

using Words = std::vector<std::string>;

/// One way of doing a job: a program, started for every reading, that prints
/// one number, as a rule nanoseconds. A process of its own, because memory that
/// is used a second time makes the second reading look cheap.
struct Candidate {
  std::string name;
  Words command;
};

/// The median reading of each candidate. Ends this program when one fails.
std::vector<double> Measure(const std::vector<Candidate>& candidates,
                            int rounds);

}  // namespace velmohelp::bench

#endif  // BENCH_SPEED_CANDIDATE_H_
