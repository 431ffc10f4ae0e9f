#include "resolve/fetch_budget.h"

#include <algorithm>

namespace velmohelp {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kPageTimeout = std::chrono::seconds(10);

}  // namespace

bool FetchBudget::FetchText(Machine& machine, const std::string& uri) {
  if (left_ <= milliseconds::zero()) return false;
  const milliseconds start = machine.MonotonicTime();
  const bool is_text = machine.FetchText(uri, std::min(kPageTimeout, left_));
  left_ -= machine.MonotonicTime() - start;
  return is_text;
}

}  // namespace velmohelp
