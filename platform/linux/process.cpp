#include "platform/linux/process.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <csignal>
#include <vector>

#include "platform/linux/environment.h"
#include "platform/linux/helpers/protocol.h"

namespace velmohelp {
namespace {

/// posix_spawn's attributes. A blocked or ignored signal passes to a started
/// program, and the person at the keyboard has a browser that does not end at
/// logout, or a tool that never hears of its own children.
class Attributes {
 public:
  explicit Attributes(bool own_session) {
    constexpr short kSignals = POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setsigdefault(&attributes_, &all);
    posix_spawnattr_setflags(
        &attributes_, own_session ? kSignals | POSIX_SPAWN_SETSID : kSignals);
  }
  Attributes(const Attributes&) = delete;
  Attributes& operator=(const Attributes&) = delete;
  ~Attributes() { posix_spawnattr_destroy(&attributes_); }

  const posix_spawnattr_t* get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_ = {};
};

/// posix_spawn's list of what happens to descriptors, in the order of calls.
class FileActions {
 public:
  FileActions() { posix_spawn_file_actions_init(&actions_); }
  FileActions(const FileActions&) = delete;
  FileActions& operator=(const FileActions&) = delete;
  ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }

  void Duplicate(int from, int to) {
    Note(posix_spawn_file_actions_adddup2(&actions_, from, to));
  }
  void CloseFrom(int first) {
    Note(posix_spawn_file_actions_addclosefrom_np(&actions_, first));
  }
  void OpenNull(int number) {
    Note(posix_spawn_file_actions_addopen(&actions_, number, "/dev/null",
                                          O_RDWR, 0));
  }

  bool complete() const { return complete_; }
  const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  void Note(int error) { complete_ = complete_ && error == 0; }

  posix_spawn_file_actions_t actions_ = {};
  bool complete_ = true;
};

bool PassesToPrograms(int descriptor) {
  const int flags = fcntl(descriptor, F_GETFD);
  return flags != -1 && (flags & FD_CLOEXEC) == 0;
}

/// A program without a standard stream takes the next file that it opens for
/// one, and prints into it.
void FillMissingStreams(FileActions& actions, const ProgramStart& start) {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    const bool given = stream == STDOUT_FILENO && start.output >= 0;
    if (!given && !PassesToPrograms(stream)) actions.OpenNull(stream);
  }
}

void AddActions(FileActions& actions, const ProgramStart& start) {
  int first_closed = STDERR_FILENO + 1;
  if (start.output >= 0) actions.Duplicate(start.output, STDOUT_FILENO);
  if (start.status >= 0) {
    actions.Duplicate(start.status, VELMO_RUN_STATUS_DESCRIPTOR);
    first_closed = VELMO_RUN_STATUS_DESCRIPTOR + 1;
  }
  actions.CloseFrom(first_closed);
  FillMissingStreams(actions, start);
}

/// The argument vector; posix_spawn takes its words as not constant, and does
/// not change them.
std::vector<char*> VectorOf(const ProgramStart& start) {
  std::vector<char*> words = {const_cast<char*>(start.program.c_str())};
  for (const std::string& argument : start.arguments) {
    words.push_back(const_cast<char*>(argument.c_str()));
  }
  words.push_back(nullptr);
  return words;
}

}  // namespace

std::optional<pid_t> StartProcess(const ProgramStart& start) {
  if (start.program.find('\0') != std::string::npos) return std::nullopt;
  const std::vector<char*> words = VectorOf(start);
  const ChildEnvironment environment;
  const Attributes attributes(start.own_session);
  FileActions actions;
  AddActions(actions, start);
  pid_t process = -1;
  if (!actions.complete() ||
      posix_spawn(&process, start.program.c_str(), actions.get(),
                  attributes.get(), words.data(),
                  environment.pointers()) != 0) {
    return std::nullopt;
  }
  return process;
}

}  // namespace velmohelp
