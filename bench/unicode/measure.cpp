#include "bench/unicode/measure.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "bench/measure.h"
#include "bench/stopwatch.h"

namespace velmohelp::bench {
namespace {

/// A reading lasts at least this long, or the clock's own cost would show.
constexpr double kShortestReading = 400'000;  // nanoseconds

/// The floor takes turns with the candidates, like one of them.
std::vector<Candidate> WithFloor(const Task& task) {
  auto all = task.candidates;
  if (task.output_bytes != 0) {
    all.push_back({"floor", [&task] {
                     std::memset(task.output->data(), 'x', task.output_bytes);
                     return task.output_bytes;
                   }});
  }
  return all;
}

void RequireAgreement(const Task& task) {
  const std::size_t expected = task.candidates.front().run();
  for (const Candidate& candidate : task.candidates) {
    if (expected != 0 && candidate.run() == expected) continue;
    std::fprintf(stderr, "%s, %s: %s disagrees\n", task.what.c_str(),
                 task.corpus.c_str(), candidate.name.c_str());
    std::exit(1);
  }
}

Reading ReadingOf(const Candidate& candidate) {
  const double once = MeanNanoseconds(3, candidate.run);
  const int times = 1 + static_cast<int>(kShortestReading / once);
  return [run = candidate.run, times] { return MeanNanoseconds(times, run); };
}

}  // namespace

Medians Measure(const Task& task, int rounds) {
  RequireAgreement(task);
  const std::vector<Candidate> all = WithFloor(task);
  std::vector<Reading> readings;
  for (const Candidate& candidate : all) {
    readings.push_back(ReadingOf(candidate));
  }
  const std::vector<double> times = Measure(readings, rounds);
  Medians medians;
  for (std::size_t i = 0; i < all.size(); ++i) {
    medians.candidates[all[i].name] = times[i];
  }
  if (task.output_bytes != 0) {
    medians.floor = medians.candidates.extract("floor").mapped();
  }
  return medians;
}

}  // namespace velmohelp::bench
