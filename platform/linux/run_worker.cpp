#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <memory>
#include <optional>
#include <string>

#include "platform/linux/answer.h"
#include "platform/linux/linux_machine.h"
#include "platform/linux/pipe.h"
#include "platform/linux/retry_on_eintr.h"
#include "platform/worker.h"

namespace velmohelp {
namespace {

/// A process beside the worker that ends both, and all that the worker waits
/// for, when the reader of the answer goes away. The worker cannot look itself:
/// while a tool runs it is suspended.
class ReaderWatch {
 public:
  ReaderWatch() : task_(MakePipe()), process_(task_ ? fork() : -1) {
    if (process_ == 0) Watch();
  }
  ReaderWatch(const ReaderWatch&) = delete;
  ReaderWatch& operator=(const ReaderWatch&) = delete;
  ~ReaderWatch() = default;

  /// False when it could not be started.
  explicit operator bool() const { return process_ > 0; }

  /// From now on nothing is ended. A browser's dialog may stay open after the
  /// answer, and the reader closes its end as soon as it has that.
  void End() {
    task_->write_end.Close();
    RetryOnEintr([&] { return waitpid(process_, nullptr, 0); });
  }

 private:
  [[noreturn]] void Watch() {
    task_->write_end.Close();
    pollfd ends[] = {{task_->read_end.get(), POLLIN, 0}, {STDOUT_FILENO, 0, 0}};
    RetryOnEintr([&] { return poll(ends, 2, -1); });
    // The viewer and the browser are in sessions of their own.
    if (ends[0].revents == 0) kill(0, SIGKILL);
    _exit(0);
  }

  /// The end of the file says that the task is done, or its process gone.
  std::optional<Pipe> task_;
  pid_t process_;
};

}  // namespace

int RunWorker(int argc, char* argv[], WorkerTask task) {
  // Anywhere else kill(0) would end somebody else's processes.
  if (argc < 3 || getsid(0) != getpid()) return 1;
  const std::string library_folder = argv[1];
  const auto machine = std::make_unique<LinuxMachine>(
      library_folder + "/velmohelp", Timeouts(), library_folder);
  if (*argv[2] != '\0') machine->SetHost(argv[2]);
  ReaderWatch watch;
  if (!watch) return 1;
  const std::string answer = task(*machine, {argv + 3, argv + argc});
  watch.End();
  return velmo_give_answer(answer.data(), answer.size()) != 0 ? 0 : 1;
}

}  // namespace velmohelp
