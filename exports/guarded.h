// The border between the client and its callers.
#ifndef EXPORTS_GUARDED_H_
#define EXPORTS_GUARDED_H_

#include <exception>

namespace velmohelp {

/// What request returns, or failure when it throws: an exception must not
/// unwind the host, whose frames may be C. (Only exceptions are caught: a
/// thread that the host cancels unwinds by other means, and must go on.)
template <typename Code, typename Request>
Code Guarded(Code failure, Request request) {
  try {
    return request();
  } catch (const std::exception&) {
    return failure;
  }
}

}  // namespace velmohelp

#endif  // EXPORTS_GUARDED_H_
