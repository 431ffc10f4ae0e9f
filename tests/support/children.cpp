#include "tests/support/children.h"

#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>

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

CopyBeforeThreads::CopyBeforeThreads(
    const std::function<bool(const std::string&)>& steps) {
  std::array<int, 2> ends = {-1, -1};
  socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data());
  connection_ = ends[0];
  copy_ = fork();
  if (copy_ != 0) {
    close(ends[1]);
    return;
  }
  std::array<char, 4096> argument = {};
  for (ssize_t size = 0;
       (size = recv(ends[1], argument.data(), argument.size(), 0)) > 0;) {
    const std::string text(argument.data(), static_cast<std::size_t>(size));
    const char result = InACopy([&] { return steps(text); }) ? 1 : 0;
    send(ends[1], &result, sizeof result, 0);
  }
  _exit(0);
}

CopyBeforeThreads::~CopyBeforeThreads() {
  kill(copy_, SIGKILL);
  waitpid(copy_, nullptr, 0);
  close(connection_);
}

bool CopyBeforeThreads::Run(const std::string& argument) const {
  char result = 0;
  return send(connection_, argument.data(), argument.size(), MSG_NOSIGNAL) >
             0 &&
         recv(connection_, &result, sizeof result, 0) == sizeof result &&
         result != 0;
}

}  // namespace velmohelp::testing
