// A test that changes which signals its thread blocks.
#ifndef TESTS_SUPPORT_SIGNAL_MASK_H_
#define TESTS_SUPPORT_SIGNAL_MASK_H_

#include <csignal>

namespace velmohelp::testing {

/// Blocks these signals, and no others, as long as it exists. A test that left
/// them blocked would break the tests after it in the same process.
class SignalMask {
 public:
  explicit SignalMask(const sigset_t& blocked) {
    sigprocmask(SIG_SETMASK, &blocked, &before_);
  }
  SignalMask(const SignalMask&) = delete;
  SignalMask& operator=(const SignalMask&) = delete;
  ~SignalMask() { sigprocmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_ = {};
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_SIGNAL_MASK_H_
