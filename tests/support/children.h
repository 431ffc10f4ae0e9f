// The processes that a test has started. A program that uses this is a child
// subreaper: programs that the library starts become its children. A copy that
// it forks is not, like an ordinary host.
#ifndef TESTS_SUPPORT_CHILDREN_H_
#define TESTS_SUPPORT_CHILDREN_H_

#include <sys/types.h>

#include <functional>
#include <string>
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

/// The same for a test that starts threads: made before them, since a copy of a
/// process with threads inherits the locks that they hold at that moment.
class CopyBeforeThreads {
 public:
  explicit CopyBeforeThreads(
      const std::function<bool(const std::string&)>& steps);
  CopyBeforeThreads(const CopyBeforeThreads&) = delete;
  CopyBeforeThreads& operator=(const CopyBeforeThreads&) = delete;
  ~CopyBeforeThreads();

  /// Runs the steps in a copy of the copy, with a text of this process.
  bool Run(const std::string& argument) const;

 private:
  pid_t copy_;
  int connection_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_CHILDREN_H_
