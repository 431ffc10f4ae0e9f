// What is measured: one job, done by this library and by others.
#ifndef BENCH_UNICODE_TASKS_H_
#define BENCH_UNICODE_TASKS_H_

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/unicode/corpora.h"

namespace velmohelp::bench {

/// How one library does a job. run: does it once, and returns the number of
/// output units (1 for a legality test), or 0 on failure.
struct Candidate {
  std::string name;
  std::function<std::size_t()> run;
};

/// A job on one text. The first candidate is this library; the peers that can
/// do the job follow.
struct Task {
  std::string what;
  std::string corpus;
  std::size_t source_bytes;
  /// Where this library writes; empty for a legality test.
  std::shared_ptr<std::vector<char>> output;
  std::size_t output_bytes;
  std::vector<Candidate> candidates;
};

inline constexpr char kIcu[] = "ICU";
inline constexpr char kIconv[] = "iconv";
inline constexpr char kGlib[] = "GLib";
inline constexpr char kUtf8cpp[] = "utf8cpp";

std::vector<Task> MakeTasks(const Corpus& corpus);

}  // namespace velmohelp::bench

#endif  // BENCH_UNICODE_TASKS_H_
