#include "bench/speed/candidate.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "bench/measure.h"

namespace velmohelp::bench {
namespace {

std::vector<char*> VectorOf(const Words& command) {
  std::vector<char*> words;
  for (const std::string& word : command) {
    words.push_back(const_cast<char*>(word.c_str()));
  }
  words.push_back(nullptr);
  return words;
}

/// Starts the command and returns the end of a pipe where its output arrives.
int Start(const Words& command, pid_t& process) {
  int ends[2] = {-1, -1};
  if (pipe2(ends, O_CLOEXEC) != 0) return -1;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  posix_spawn(&process, command.front().c_str(), &actions, nullptr,
              VectorOf(command).data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  return ends[0];
}

/// Not the whole output: a viewer that the command started may hold the pipe
/// open.
std::string FirstLine(int pipe) {
  std::string line;
  char byte = 0;
  while (read(pipe, &byte, 1) == 1 && byte != '\n') line += byte;
  close(pipe);
  return line;
}

[[noreturn]] void Fail(const Words& command) {
  std::fputs("failed:", stderr);
  for (const auto& word : command) std::fprintf(stderr, " %s", word.c_str());
  std::fputs("\n", stderr);
  std::exit(1);
}

double ReadingOf(const Words& command) {
  pid_t process = -1;
  int status = 0;
  const int pipe = Start(command, process);
  if (process < 0) Fail(command);
  const std::string line = FirstLine(pipe);
  if (waitpid(process, &status, 0) != process || status != 0) Fail(command);
  return std::strtod(line.c_str(), nullptr);
}

}  // namespace

std::vector<double> Measure(const std::vector<Candidate>& candidates,
                            int rounds) {
  std::vector<Reading> readings;
  for (const Candidate& candidate : candidates) {
    readings.push_back([&] { return ReadingOf(candidate.command); });
  }
  return Measure(readings, rounds);
}

}  // namespace velmohelp::bench
