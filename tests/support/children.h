// The processes that a test has started. A program that uses this is a child
// subreaper: programs that the library starts become its children. A copy that
// it forks is not, like an ordinary host.
#ifndef TESTS_SUPPORT_CHILDREN_H_
#define TESTS_SUPPORT_CHILDREN_H_

#include <sys/types.h>

#include <functional>
#include <vector>

namespace velmohelp::testing {

/// The children of this process, those that have ended and were not waited
/// for among them.
std::vector<pid_t> Children();

/// Ends all of them, and those that they leave to this process, and waits for
/// it.
void EndChildren();

/// Waits until each of them has ended, and leaves them as zombies.
void AwaitEndOfChildren();

/// Runs a test's steps in a copy of this process, which they may change as
/// they like; true when they return true.
bool InACopy(const std::function<bool()>& steps);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_CHILDREN_H_
