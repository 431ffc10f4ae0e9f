// The border between the client and its callers.
#ifndef EXPORTS_GUARDED_H_
#define EXPORTS_GUARDED_H_

#include <exception>
#include <type_traits>

#include "exports/lifetime.h"
#include "platform/cancellation.h"

namespace velmohelp {

/// Runs a call that uses neither the machine nor the state: good at any time.
/// A cancellation that came meanwhile takes effect when the call's exception is
/// no longer in flight: a thread that unwinds from a destructor during another
/// unwinding ends the host.
template <typename Request>
std::invoke_result_t<Request> Uncancelled(Request request) {
  std::exception_ptr thrown;
  {
    const CancellationDisabled cancellation_disabled;
    try {
      return request();
    } catch (const std::exception&) {
      thrown = std::current_exception();
    }
  }
  std::rethrow_exception(thrown);
}

/// Runs a call that uses the machine or the state. Returns refused when the
/// state has ended, and touches nothing.
template <typename Request>
std::invoke_result_t<Request> WithState(
    const std::type_identity_t<std::invoke_result_t<Request>>& refused,
    Request request) {
  return Uncancelled([&] {
    const StateUse use;
    return use.is_allowed() ? request() : refused;
  });
}

template <typename Request>
void WithState(Request request) {
  Uncancelled([&] {
    const StateUse use;
    if (use.is_allowed()) request();
  });
}

/// What request returns, or failure when it throws: an exception must not
/// unwind the host, whose frames may be C.
template <typename Code, typename Request>
Code Guarded(Code failure, Request request) {
  try {
    return request();
  } catch (const std::exception&) {
    return failure;
  }
}

/// What a C function returns when its request has no result.
template <typename Code>
struct FailureCodes {
  Code state_has_ended;
  Code exception;
};

template <typename Code, typename Request>
Code GuardedWithState(FailureCodes<Code> codes, Request request) {
  return WithState(codes.state_has_ended,
                   [&] { return Guarded(codes.exception, request); });
}

}  // namespace velmohelp

#endif  // EXPORTS_GUARDED_H_
