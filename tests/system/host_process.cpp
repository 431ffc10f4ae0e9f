#include "tests/system/host_process.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace velmohelp::testing {
namespace {

std::string InProc(pid_t process, const std::string& name) {
  return "/proc/" + std::to_string(process) + "/" + name;
}

std::vector<char*> Pointers(const Words& words) {
  std::vector<char*> pointers;
  for (const std::string& word : words) {
    pointers.push_back(const_cast<char*>(word.c_str()));
  }
  pointers.push_back(nullptr);
  return pointers;
}

/// What a program leaves running must not hold the test's own streams: who
/// reads them would wait for it.
void SetStreams(const std::string& errors) {
  const int nothing = open("/dev/null", O_RDWR);
  const int file = open(errors.c_str(), O_WRONLY | O_CREAT | O_APPEND, S_IRWXU);
  dup2(nothing, STDIN_FILENO);
  dup2(nothing, STDOUT_FILENO);
  dup2(file, STDERR_FILENO);
}

}  // namespace

HostProcess::HostProcess(const HostStart& start) {
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  int sockets[2] = {-1, -1};
  socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets);
  process_ = fork();
  if (process_ == 0) Become(start, sockets[1]);
  close(sockets[1]);
  socket_ = sockets[0];
}

void HostProcess::Become(const HostStart& start, int socket) {
  const Words words = {start.program, start.plug_in};
  SetStreams(start.errors);
  dup2(socket, kTestDescriptor);
  fcntl(kTestDescriptor, F_SETFD, 0);
  closefrom(kTestDescriptor + 1);
  if (!start.preparation()) _exit(1);
  execve(start.program.c_str(), Pointers(words).data(),
         Pointers(start.environment).data());
  _exit(1);
}

HostProcess::~HostProcess() {
  if (process_ != -1) End();
}

std::string HostProcess::Ask(const Words& request) const {
  if (!SendWords(socket_, request)) return "dead";
  const auto answer = ReceiveWords(socket_);
  return answer ? answer->at(0) : "dead";
}

int HostProcess::End() {
  close(socket_);
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string HostProcess::StatusLine(const std::string& name) const {
  std::ifstream status(InProc(process_, "status"));
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name + ":")) return line.substr(name.size() + 1);
  }
  return "";
}

std::size_t HostProcess::CountIn(const std::string& folder) const {
  const std::filesystem::directory_iterator entries(InProc(process_, folder));
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

std::vector<pid_t> ChildrenOf(pid_t process) {
  const std::string id = std::to_string(process);
  std::ifstream list(InProc(process, "task/" + id + "/children"));
  return {std::istream_iterator<pid_t>(list), {}};
}

void AwaitEnd(pid_t process) {
  pollfd end = {static_cast<int>(syscall(SYS_pidfd_open, process, 0)), POLLIN,
                0};
  if (end.fd == -1) return;
  poll(&end, 1, -1);
  close(end.fd);
}

std::string ProgramOf(pid_t process) {
  std::error_code ended;
  return std::filesystem::read_symlink(InProc(process, "exe"), ended);
}

}  // namespace velmohelp::testing
