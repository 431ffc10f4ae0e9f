#include "viewer/content/client_thread.h"

namespace viewer {
namespace {

struct Job {
  std::function<void()> work;
  std::function<void()> done;
};

gboolean Finish(gpointer data) {
  static_cast<Job*>(data)->done();
  return G_SOURCE_REMOVE;
}

void Free(gpointer data) { delete static_cast<Job*>(data); }

void Run(gpointer data, gpointer) {
  static_cast<Job*>(data)->work();
  g_idle_add_full(G_PRIORITY_DEFAULT, Finish, data, Free);
}

}  // namespace

ClientThread::ClientThread()
    : pool_(g_thread_pool_new_full(Run, nullptr, Free, 1, FALSE, nullptr)) {}

ClientThread::~ClientThread() { g_thread_pool_free(pool_, TRUE, TRUE); }

void ClientThread::Push(std::function<void()> work,
                        std::function<void()> done) {
  g_thread_pool_push(pool_, new Job{std::move(work), std::move(done)}, nullptr);
}

}  // namespace viewer
