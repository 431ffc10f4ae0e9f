// The thread on which the help client is asked: a call may block for seconds,
// and never may two run at once.
#ifndef VIEWER_CONTENT_CLIENT_THREAD_H_
#define VIEWER_CONTENT_CLIENT_THREAD_H_

#include <gio/gio.h>

#include <functional>
#include <memory>
#include <utility>

namespace viewer {

class ClientThread {
 public:
  ClientThread();
  /// Waits for the call that runs. What has not begun is dropped.
  ~ClientThread();
  ClientThread(const ClientThread&) = delete;
  ClientThread& operator=(const ClientThread&) = delete;

  /// Runs work on the thread, in the order of the calls, then done with its
  /// result in the main loop.
  template <typename Work, typename Done>
  void Ask(Work work, Done done) {
    using Result = decltype(work());
    auto result = std::make_shared<Result>();
    Push([result, work = std::move(work)] { *result = work(); },
         [result, done = std::move(done)] { done(std::move(*result)); });
  }

 private:
  void Push(std::function<void()> work, std::function<void()> done);

  GThreadPool* pool_;
};

}  // namespace viewer

#endif  // VIEWER_CONTENT_CLIENT_THREAD_H_
