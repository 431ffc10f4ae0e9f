#include "bench/measure.h"

#include <algorithm>
#include <numeric>
#include <random>

#include "bench/stopwatch.h"

namespace velmohelp::bench {

std::vector<double> Measure(const std::vector<Reading>& candidates,
                            int rounds) {
  std::vector<std::vector<double>> readings(candidates.size());
  std::vector<std::size_t> order(candidates.size());
  std::iota(order.begin(), order.end(), 0);
  std::mt19937 random(9);  // NOLINT: the same orders every time
  for (int round = 0; round < rounds; ++round) {
    std::shuffle(order.begin(), order.end(), random);
    for (const std::size_t i : order) readings[i].push_back(candidates[i]());
  }
  std::vector<double> medians;
  for (auto& all : readings) medians.push_back(Median(std::move(all)));
  return medians;
}

}  // namespace velmohelp::bench
