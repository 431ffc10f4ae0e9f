#include "tools/check/progress.h"

#include <string>

namespace velmohelp::tool {

Progress::~Progress() {
  if (is_drawn_) console_.err << "\r\x1B[K" << std::flush;
}

void Progress::Show(std::size_t done, std::size_t total,
                    Clock::time_point now) {
  if (!console_.err_is_terminal || now < next_) return;
  constexpr std::size_t kWidth = 40;
  const std::size_t filled = total == 0 ? 0 : kWidth * done / total;
  console_.err << "\r[" << std::string(filled, '#')
               << std::string(kWidth - filled, ' ') << "] " << done << "/"
               << total << " pages" << std::flush;
  is_drawn_ = true;
  next_ = now + std::chrono::milliseconds(100);
}

}  // namespace velmohelp::tool
