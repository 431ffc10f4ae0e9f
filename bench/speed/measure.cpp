#include "bench/speed/measure.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "bench/speed/samples/stopwatch.h"

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

/// Starts the command with its output at the end of a pipe, which is returned.
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

/// One line: a viewer that the command started may hold the pipe open.
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

double Reading(const Words& command) {
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
  const std::size_t count = candidates.size();
  std::vector<std::vector<double>> readings(count);
  for (std::size_t round = 0; round < static_cast<std::size_t>(rounds);
       ++round) {
    for (std::size_t turn = 0; turn < count; ++turn) {
      const std::size_t i = (round + turn) % count;
      readings[i].push_back(Reading(candidates[i].command));
    }
  }
  std::vector<double> medians;
  for (auto& all : readings) medians.push_back(Median(std::move(all)));
  return medians;
}

}  // namespace velmohelp::bench
