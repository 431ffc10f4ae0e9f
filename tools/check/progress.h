// A progress bar for work that takes a while.
#ifndef TOOLS_CHECK_PROGRESS_H_
#define TOOLS_CHECK_PROGRESS_H_

#include <chrono>
#include <cstddef>

#include "tools/console.h"

namespace velmohelp::tool {

/// Draws on a terminal only, from the second second on, and clears its line at
/// its destruction.
class Progress {
 public:
  using Clock = std::chrono::steady_clock;

  Progress(const Console& console, Clock::time_point start)
      : console_(console), next_(start + std::chrono::seconds(1)) {}
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  /// done of total pages are read.
  void Show(std::size_t done, std::size_t total,
            Clock::time_point now = Clock::now());

 private:
  const Console& console_;
  Clock::time_point next_;
  bool is_drawn_ = false;
};

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_PROGRESS_H_
