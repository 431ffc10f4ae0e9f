// Time on the monotonic clock.
#ifndef BENCH_STOPWATCH_H_
#define BENCH_STOPWATCH_H_

#include <algorithm>
#include <chrono>
#include <vector>

namespace velmohelp::bench {

/// How long the work takes.
template <typename Work>
double Nanoseconds(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double, std::nano> spent =
      std::chrono::steady_clock::now() - start;
  return spent.count();
}

inline double Median(std::vector<double> readings) {
  const auto middle =
      readings.begin() + static_cast<std::ptrdiff_t>(readings.size() / 2);
  std::nth_element(readings.begin(), middle, readings.end());
  return *middle;
}

/// The median of many readings, after a few that warm up the caches.
template <typename Work>
double MedianNanoseconds(int times, Work work) {
  std::vector<double> readings;
  for (int i = 0; i < 3; ++i) work();
  for (int i = 0; i < times; ++i) readings.push_back(Nanoseconds(work));
  return Median(std::move(readings));
}

/// Nanoseconds of one run, as the mean of this many.
template <typename Work>
double MeanNanoseconds(int times, Work work) {
  const double all = Nanoseconds([&] {
    for (int i = 0; i < times; ++i) work();
  });
  return all / times;
}

/// The mean of as many runs as fill ten milliseconds: for work that is too
/// short to be timed by itself.
template <typename Work>
double MeanNanoseconds(Work work) {
  constexpr double kSpan = 10e6;
  const double once = Nanoseconds(work);
  return MeanNanoseconds(1 + static_cast<int>(kSpan / (once + 1)), work);
}

/// Keeps a compiler from dropping work whose result nobody uses.
inline void Use(const void* result) {
  asm volatile("" : : "g"(result) : "memory");
}

}  // namespace velmohelp::bench

#endif  // BENCH_STOPWATCH_H_
