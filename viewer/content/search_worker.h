// The thread that owns a product's search index, so that neither building it
// nor a query ever holds up the window.
#ifndef VIEWER_CONTENT_SEARCH_WORKER_H_
#define VIEWER_CONTENT_SEARCH_WORKER_H_

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "viewer/content/search_index.h"

namespace viewer {

struct SearchAnswer {
  std::string text;
  std::vector<SearchHit> hits;
  /// False while the index is being built: more pages may follow.
  bool complete = false;
};

class SearchWorker {
 public:
  /// What the worker reports. Called in the main loop, never after the
  /// destructor.
  struct Listener {
    std::function<void(SearchAnswer)> on_answer;
    /// What was kept under the name that an update was asked with.
    std::function<void(std::string)> on_kept;
    /// The index is up to date: the pages by title.
    std::function<void(std::vector<SearchHit>)> on_updated;
  };

  SearchWorker(std::string file, Listener listener);
  ~SearchWorker();
  SearchWorker(const SearchWorker&) = delete;
  SearchWorker& operator=(const SearchWorker&) = delete;

  void Update(std::set<ContentFolder> folders, std::string kept_name);
  /// A newer search replaces one that was not yet answered.
  void Search(std::string text);
  void Keep(std::string name, std::string text);

 private:
  struct Orders {
    std::optional<std::set<ContentFolder>> folders;
    std::string kept_name;
    std::optional<std::string> text;
    std::vector<std::pair<std::string, std::string>> to_keep;
  };

  void Work();
  bool WaitForOrders(Orders& orders);
  void RunUpdate(SearchIndex& index, const Orders& orders);
  bool AnswerPending(SearchIndex& index);
  void Answer(SearchIndex& index, const std::string& text, bool complete);
  void Report(std::function<void(const Listener&)> report);

  const std::string file_;
  // The main loop may call back later than the worker lives.
  const std::shared_ptr<const Listener> listener_;
  std::mutex mutex_;
  std::condition_variable changed_;
  Orders orders_;
  bool stopped_ = false;
  std::optional<std::string> unfinished_;
  std::thread thread_;
};

}  // namespace viewer

#endif  // VIEWER_CONTENT_SEARCH_WORKER_H_
