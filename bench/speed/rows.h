// What is measured, against what, and with which target.
#ifndef BENCH_SPEED_ROWS_H_
#define BENCH_SPEED_ROWS_H_

#include <string>
#include <vector>

#include "bench/speed/candidate.h"

namespace velmohelp::bench {

/// How our reading and the peer's make the row's figure.
enum class Rule {
  kRatio,        ///< ours / peer, at most the target
  kTimesFaster,  ///< peer / ours, at least the target
  kDifference,   ///< ours - peer, at most the target
  kCount,        ///< ours, at most the target
};

struct Row {
  /// Names the row's part of the table: an argument of ./bench/run.
  std::string group;
  std::string what;
  /// Ours first, then the peer.
  std::vector<Candidate> candidates;
  Rule rule;
  double target;
  /// The stretch target; 0 without one.
  double stretch = 0;
};

std::vector<Row> AllRows();

/// The command of a sample of bench_sample.
Words Sample(Words words);

/// A path in the benchmarks' world.
std::string InWorld(const std::string& path);

}  // namespace velmohelp::bench

#endif  // BENCH_SPEED_ROWS_H_
