#include "platform/linux/programs.h"

#include "platform/linux/pipe.h"
#include "platform/linux/process.h"
#include "platform/linux/read_answer.h"

namespace velmohelp {

std::optional<int> RunToEnd(const std::string& program,
                            const Arguments& arguments) {
  const auto report = StartProcess(
      {.program = program, .arguments = arguments, .wait_for = WaitFor::kEnd});
  return report ? report->exit_status : std::nullopt;
}

std::optional<std::string> FirstOutput(const std::string& program,
                                       const Arguments& arguments) {
  const auto report = StartProcess({.program = program,
                                    .arguments = arguments,
                                    .wait_for = WaitFor::kFirstOutput});
  return report ? report->output : std::nullopt;
}

StartResult StartDetached(const std::string& program,
                          const Arguments& arguments,
                          const std::optional<std::string>& activation_token) {
  const auto report = StartProcess({.program = program,
                                    .arguments = arguments,
                                    .own_session = true,
                                    .activation_token = activation_token});
  if (!report) return StartResult::kFailed;
  return report->running ? StartResult::kRunning : StartResult::kEndedAtOnce;
}

std::optional<std::string> AskHelper(
    const std::string& program, const Arguments& question,
    std::chrono::milliseconds timeout, std::size_t limit,
    const std::optional<std::string>& activation_token) {
  auto pipe = MakePipe();
  if (!pipe) return std::nullopt;
  const auto report = StartProcess({.program = program,
                                    .arguments = question,
                                    .output = pipe->write_end.get(),
                                    .drop_errors = true,
                                    .activation_token = activation_token,
                                    .time_limit = timeout});
  if (!report) return std::nullopt;
  // A helper that ends without an answer is the last to hold the other end,
  // unless the host forks at this moment.
  pipe->write_end.Close();
  return ReadAnswer(pipe->read_end, timeout, limit);
}

}  // namespace velmohelp
