#include "viewer/content/search_worker.h"

#include <glib.h>
#include <malloc.h>

#include <utility>

namespace viewer {

SearchWorker::SearchWorker(std::string file, Listener listener)
    : file_(std::move(file)),
      listener_(std::make_shared<const Listener>(std::move(listener))),
      thread_([this] { Work(); }) {}

SearchWorker::~SearchWorker() {
  {
    const std::lock_guard lock(mutex_);
    stopped_ = true;
  }
  changed_.notify_one();
  thread_.join();
}

void SearchWorker::Update(std::set<ContentFolder> folders,
                          std::string kept_name) {
  {
    const std::lock_guard lock(mutex_);
    orders_.folders = std::move(folders);
    orders_.kept_name = std::move(kept_name);
  }
  changed_.notify_one();
}

void SearchWorker::Search(std::string text) {
  {
    const std::lock_guard lock(mutex_);
    orders_.text = std::move(text);
  }
  changed_.notify_one();
}

void SearchWorker::Keep(std::string name, std::string text) {
  {
    const std::lock_guard lock(mutex_);
    orders_.to_keep.emplace_back(std::move(name), std::move(text));
  }
  changed_.notify_one();
}

bool SearchWorker::WaitForOrders(Orders& orders) {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] {
    return stopped_ || orders_.folders || orders_.text ||
           !orders_.to_keep.empty();
  });
  orders = std::exchange(orders_, {});
  return !stopped_;
}

void SearchWorker::Work() {
  SearchIndex index(file_);
  Orders orders;
  while (WaitForOrders(orders)) {
    for (const auto& [name, text] : orders.to_keep) index.Keep(name, text);
    if (orders.text) Answer(index, *orders.text, !orders.folders);
    if (orders.folders) RunUpdate(index, orders);
  }
}

void SearchWorker::RunUpdate(SearchIndex& index, const Orders& orders) {
  Report([kept = index.Kept(orders.kept_name)](const Listener& listener) {
    listener.on_kept(kept);
  });
  index.Update(*orders.folders, [&] { return AnswerPending(index); });
  if (unfinished_) Answer(index, *std::exchange(unfinished_, {}), true);
  // The pages' texts are gone; give their memory back to the system.
  malloc_trim(0);
  Report([titles = index.Titles()](const Listener& listener) {
    listener.on_updated(titles);
  });
}

bool SearchWorker::AnswerPending(SearchIndex& index) {
  std::unique_lock lock(mutex_);
  if (stopped_) return false;
  const auto text = std::exchange(orders_.text, {});
  lock.unlock();
  if (text) Answer(index, *text, false);
  return true;
}

void SearchWorker::Answer(SearchIndex& index, const std::string& text,
                          bool complete) {
  if (!complete) unfinished_ = text;
  Report([answer = SearchAnswer{text, index.Search(text), complete}](
             const Listener& listener) { listener.on_answer(answer); });
}

namespace {

struct Call {
  std::weak_ptr<const SearchWorker::Listener> listener;
  std::function<void(const SearchWorker::Listener&)> report;
};

}  // namespace

void SearchWorker::Report(std::function<void(const Listener&)> report) {
  // Not g_main_context_invoke, which could run the call in this thread.
  g_idle_add_full(
      G_PRIORITY_DEFAULT,
      [](gpointer data) -> gboolean {
        const auto* call = static_cast<Call*>(data);
        if (const auto listener = call->listener.lock()) {
          call->report(*listener);
        }
        return G_SOURCE_REMOVE;
      },
      new Call{listener_, std::move(report)},
      [](gpointer data) { delete static_cast<Call*>(data); });
}

}  // namespace viewer
