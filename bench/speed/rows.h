// What is measured, against what, and what is to be reached.
#ifndef BENCH_SPEED_ROWS_H_
#define BENCH_SPEED_ROWS_H_

#include <string>
#include <vector>

#include "bench/speed/measure.h"

namespace velmohelp::bench {

/// How ours and the peer's figure make the figure that counts.
enum class Rule {
  kRatio,        ///< ours / peer, to be at most the target
  kTimesFaster,  ///< peer / ours, to be at least the target
  kDifference,   ///< ours - peer, to be at most the target
  kCount,        ///< ours, to be at most the target
};

struct Row {
  /// Names the row's part of the table: an argument of ./bench/run.
  std::string group;
  std::string what;
  /// Ours first, then the peer.
  std::vector<Candidate> candidates;
  Rule rule;
  double target;
  /// 0: there is none.
  double moonshot = 0;
};

std::vector<Row> AllRows();

/// The command of a sample of bench_sample.
Words Sample(Words words);

/// A path in the benchmarks' world.
std::string InWorld(const std::string& path);

}  // namespace velmohelp::bench

#endif  // BENCH_SPEED_ROWS_H_
