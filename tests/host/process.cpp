#include "tests/host/process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <memory>

namespace velmohelp::testing {
namespace {

struct Close {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;
using Descriptors = std::array<int, 3>;

std::vector<char*> Pointers(const Words& words) {
  std::vector<char*> pointers;
  for (const auto& word : words) {
    pointers.push_back(const_cast<char*>(word.c_str()));
  }
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<char*> WholeEnvironment(const Words& more) {
  std::vector<char*> all = Pointers(more);
  all.pop_back();
  for (char** entry = environ; *entry != nullptr; ++entry) {
    all.push_back(*entry);
  }
  all.push_back(nullptr);
  return all;
}

pid_t Start(const Words& command, const Descriptors& standard,
            const Words& environment) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  for (int i = 0; i < 3; ++i) {
    posix_spawn_file_actions_adddup2(&actions,
                                     standard[static_cast<std::size_t>(i)], i);
  }
  pid_t child = -1;
  const int failure = posix_spawnp(&child, command.front().c_str(), &actions,
                                   nullptr, Pointers(command).data(),
                                   WholeEnvironment(environment).data());
  EXPECT_EQ(failure, 0) << command.front();
  posix_spawn_file_actions_destroy(&actions);
  return child;
}

int StatusOf(pid_t child) {
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

File NewFile(const std::string& content = "") {
  File file(std::tmpfile());
  std::fputs(content.c_str(), file.get());
  std::rewind(file.get());
  return file;
}

std::string Content(std::FILE* file) {
  std::rewind(file);
  std::string content;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
    content += static_cast<char>(c);
  }
  return content;
}

/// Reads until the terminal's last user has gone, which reads as an error.
std::string AllShown(int terminal) {
  std::string shown;
  std::array<char, 256> part{};
  for (;;) {
    const ssize_t size = read(terminal, part.data(), part.size());
    if (size <= 0) return shown;
    shown.append(part.data(), static_cast<std::size_t>(size));
  }
}

/// The two ends of a terminal that shows nothing but what is written to it. It
/// is not in canonical mode, so that Control-D stays a byte until the program
/// has set the terminal up for its line editor.
std::array<int, 2> NewTerminal() {
  int ours = -1;
  int theirs = -1;
  EXPECT_EQ(openpty(&ours, &theirs, nullptr, nullptr, nullptr), 0);
  termios settings{};
  tcgetattr(theirs, &settings);
  settings.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON);
  settings.c_oflag &= ~static_cast<tcflag_t>(OPOST);
  tcsetattr(theirs, TCSANOW, &settings);
  fcntl(ours, F_SETFD, FD_CLOEXEC);
  fcntl(theirs, F_SETFD, FD_CLOEXEC);
  return {ours, theirs};
}

}  // namespace

Outcome RunProgram(const Words& command, const std::string& input,
                   const Words& environment) {
  const File in = NewFile(input);
  const File out = NewFile();
  const File error = NewFile();
  const pid_t child =
      Start(command, {fileno(in.get()), fileno(out.get()), fileno(error.get())},
            environment);
  const int status = StatusOf(child);
  return {status, Content(out.get()), Content(error.get())};
}

Outcome RunOnTerminal(const Words& command, const std::string& input) {
  const auto [ours, theirs] = NewTerminal();
  const std::string typed = input + "\x04";
  EXPECT_EQ(write(ours, typed.data(), typed.size()),
            static_cast<ssize_t>(typed.size()));
  const pid_t child = Start(command, {theirs, theirs, theirs}, {"TERM=dumb"});
  close(theirs);
  std::string shown = AllShown(ours);
  close(ours);
  return {StatusOf(child), shown, ""};
}

}  // namespace velmohelp::testing
