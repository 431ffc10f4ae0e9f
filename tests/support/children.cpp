#include "tests/support/children.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <string>

namespace velmohelp::testing {
namespace {

[[maybe_unused]] const int kSubreaper = prctl(PR_SET_CHILD_SUBREAPER, 1);

}  // namespace

std::vector<pid_t> Children() {
  std::ifstream list("/proc/self/task/" + std::to_string(getpid()) +
                     "/children");
  std::vector<pid_t> children;
  for (pid_t child = 0; list >> child;) children.push_back(child);
  return children;
}

void EndChildren() {
  for (auto children = Children(); !children.empty(); children = Children()) {
    for (const pid_t child : children) {
      kill(child, SIGKILL);
      waitpid(child, nullptr, 0);
    }
  }
}

void AwaitEndOfChildren() {
  for (const pid_t child : Children()) {
    siginfo_t info = {};
    waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT);
  }
}

bool InACopy(const std::function<bool()>& steps) {
  const pid_t copy = fork();
  if (copy == 0) _exit(steps() ? 0 : 1);
  int status = -1;
  waitpid(copy, &status, 0);
  return status == 0;
}

}  // namespace velmohelp::testing
