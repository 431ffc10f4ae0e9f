#include "platform/linux/programs.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/linux/files.h"
#include "platform/linux/pipe.h"
#include "platform/linux/process.h"
#include "platform/linux/read_answer.h"
#include "platform/linux/retry_on_eintr.h"

namespace velmohelp {
namespace {

/// More than callers use of a tool's first output.
constexpr std::size_t kFirstOutputSize = 4096;

/// The host's way with its children may take a child's exit status before it
/// is asked for: the system drops it when SIGCHLD is ignored, and many a
/// handler waits for every child that there is.
bool HostMayTakeStatuses() {
  struct sigaction action = {};
  sigaction(SIGCHLD, nullptr, &action);
  return action.sa_handler != SIG_DFL || (action.sa_flags & SA_NOCLDWAIT) != 0;
}

std::optional<int> WaitForStatus(pid_t process) {
  int status = 0;
  if (RetryOnEintr([&] { return waitpid(process, &status, 0); }) != process ||
      !WIFEXITED(status)) {
    return std::nullopt;
  }
  return WEXITSTATUS(status);
}

/// One read, however much more there is.
std::optional<std::string> ReadOnce(const UniqueFd& pipe) {
  std::string text(kFirstOutputSize, '\0');
  const ssize_t got =
      RetryOnEintr([&] { return read(pipe.get(), text.data(), text.size()); });
  if (got < 0) return std::nullopt;
  text.resize(static_cast<std::size_t>(got));
  return text;
}

}  // namespace

std::optional<int> Programs::RunToEnd(const std::string& program,
                                      const Arguments& arguments) {
  reaper_.Reap();
  if (HostMayTakeStatuses() && IsExecutable(runner_)) {
    return RunByRunner(program, arguments);
  }
  const auto process = StartProcess({program, arguments});
  return process ? WaitForStatus(*process) : std::nullopt;
}

std::optional<int> Programs::RunByRunner(const std::string& program,
                                         const Arguments& arguments) {
  // The runner would see another, shorter path.
  if (program.find('\0') != std::string::npos) return std::nullopt;
  auto pipe = MakePipe();
  if (!pipe) return std::nullopt;
  Arguments words = {program};
  words.insert(words.end(), arguments.begin(), arguments.end());
  ProgramStart start = {runner_, words};
  start.status = pipe->write_end.get();
  if (!StartRemembered(start)) return std::nullopt;
  pipe->write_end.Close();
  const auto status = ReadOnce(pipe->read_end);
  if (!status || status->size() != 1) return std::nullopt;
  return static_cast<unsigned char>(status->front());
}

std::optional<std::string> Programs::FirstOutput(const std::string& program,
                                                 const Arguments& arguments) {
  const auto source = StartSource(program, arguments);
  return source ? ReadOnce(source->output) : std::nullopt;
}

bool Programs::Start(const std::string& program, const Arguments& arguments) {
  return StartApart(program, arguments).has_value();
}

bool Programs::StartAndCheck(const std::string& program,
                             const Arguments& arguments) {
  const auto process = StartApart(program, arguments);
  return process && reaper_.IsRunning(*process);
}

std::optional<std::string> Programs::Answer(const std::string& program,
                                            const Arguments& arguments,
                                            std::chrono::milliseconds patience,
                                            std::size_t limit) {
  const auto source = StartSource(program, arguments);
  if (!source) return std::nullopt;
  auto text = ReadAnswer(source->output, patience, limit);
  if (!text) reaper_.End(source->process);
  return text;
}

std::optional<Programs::Source> Programs::StartSource(
    const std::string& program, const Arguments& arguments) {
  auto pipe = MakePipe();
  if (!pipe) return std::nullopt;
  ProgramStart start = {program, arguments};
  start.output = pipe->write_end.get();
  const auto process = StartRemembered(start);
  if (!process) return std::nullopt;
  return Source{*process, std::move(pipe->read_end)};
}

std::optional<pid_t> Programs::StartApart(const std::string& program,
                                          const Arguments& arguments) {
  ProgramStart start = {program, arguments};
  start.own_session = true;
  return StartRemembered(start);
}

std::optional<pid_t> Programs::StartRemembered(const ProgramStart& start) {
  reaper_.Reap();
  reaper_.Prepare();
  const auto process = StartProcess(start);
  if (process) reaper_.Remember(*process);
  return process;
}

}  // namespace velmohelp
