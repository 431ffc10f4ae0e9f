// How long a request may spend on loading pages.
#ifndef RESOLVE_FETCH_BUDGET_H_
#define RESOLVE_FETCH_BUDGET_H_

#include <chrono>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// The time that one request has for all of its fetches. Without it every
/// content folder would cost another timeout, and the person at the keyboard
/// would wait for minutes for a slow server.
class FetchBudget {
 public:
  /// Machine::FetchText, with a page's timeout or with the time that is left.
  /// False at once, without a question to the machine, when none is left.
  bool FetchText(Machine& machine, const std::string& uri);

 private:
  std::chrono::milliseconds left_ = std::chrono::seconds(20);
};

}  // namespace velmohelp

#endif  // RESOLVE_FETCH_BUDGET_H_
