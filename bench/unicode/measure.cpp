#include "bench/unicode/measure.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <random>

namespace velmohelp::bench {
namespace {

/// A reading lasts at least this long: the cost of the clock must not show.
constexpr double kShortestReading = 400'000;  // nanoseconds

double Nanoseconds(const std::function<std::size_t()>& run, int times) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < times; ++i) run();
  const std::chrono::duration<double, std::nano> spent =
      std::chrono::steady_clock::now() - start;
  return spent.count() / times;
}

double Median(std::vector<double> readings) {
  std::sort(readings.begin(), readings.end());
  return readings[readings.size() / 2];
}

/// The floor runs like any candidate.
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

}  // namespace

Medians Measure(const Task& task, int rounds) {
  RequireAgreement(task);
  const std::vector<Candidate> all = WithFloor(task);
  std::vector<int> times;
  for (const Candidate& candidate : all) {
    times.push_back(
        1 + static_cast<int>(kShortestReading / Nanoseconds(candidate.run, 3)));
  }
  std::vector<std::vector<double>> readings(all.size());
  std::vector<std::size_t> order(all.size());
  std::iota(order.begin(), order.end(), 0);
  std::mt19937 random(9);  // NOLINT: the same orders every time
  for (int round = 0; round < rounds; ++round) {
    std::shuffle(order.begin(), order.end(), random);
    for (const std::size_t i : order) {
      readings[i].push_back(Nanoseconds(all[i].run, times[i]));
    }
  }
  Medians medians;
  for (std::size_t i = 0; i < all.size(); ++i) {
    medians.candidates[all[i].name] = Median(readings[i]);
  }
  if (task.output_bytes != 0) {
    medians.floor = medians.candidates.extract("floor").mapped();
  }
  return medians;
}

}  // namespace velmohelp::bench
