// A thread of a host with a stack of a known size.
#ifndef TESTS_SYSTEM_SMALL_STACK_H_
#define TESTS_SYSTEM_SMALL_STACK_H_

#include <cstddef>
#include <functional>
#include <optional>

namespace velmohelp::testing {

/// Runs an action on a thread whose stack has that many bytes, above a guard
/// page; how many of them were used, what the C library keeps there included.
/// nullopt when the action wrote below the guard page, into memory that would
/// be the host's. (An action that meets the guard page ends the host.)
std::optional<std::size_t> UseOfStack(std::size_t size,
                                      const std::function<void()>& action);

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_SMALL_STACK_H_
