#include "platform/linux/worker.h"

#include "platform/linux/pipe.h"
#include "platform/linux/process.h"
#include "platform/linux/read_answer.h"

namespace velmohelp {
namespace {

/// Bytes of an answer: a number.
constexpr std::size_t kAnswerLimit = 64;

}  // namespace

/// In a session of its own: its process group is the worker and what it waits
/// for, and nothing of the host's.
int StartWorker(const WorkerHost& host, const Arguments& words) {
  auto pipe = MakePipe();
  if (!pipe) return -1;
  Arguments arguments = {host.library_folder, host.host};
  arguments.insert(arguments.end(), words.begin(), words.end());
  const auto report =
      StartProcess({.program = host.helper_folder + "/velmohelp-request",
                    .arguments = arguments,
                    .output = pipe->write_end.get(),
                    .own_session = true,
                    .activation_token = host.activation_token});
  return report ? pipe->read_end.Release() : -1;
}

std::optional<std::string> FinishWorker(int descriptor) {
  if (descriptor < 0) return std::nullopt;
  return ReadAnswer(UniqueFd(descriptor), std::nullopt, kAnswerLimit);
}

}  // namespace velmohelp
