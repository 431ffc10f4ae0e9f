// The side of a window: contents, or the results of a search.
#ifndef VIEWER_APP_SIDEBAR_H_
#define VIEWER_APP_SIDEBAR_H_

#include <gtk/gtk.h>

#include <functional>
#include <string>
#include <vector>

#include "viewer/content/contents_list.h"
#include "viewer/content/search_worker.h"

namespace viewer {

class Sidebar {
 public:
  struct Listener {
    std::function<void(const std::string& address)> on_page;
    /// A result: the page, and the words to highlight in it.
    std::function<void(const std::string& address, const std::string& text)>
        on_result;
    std::function<void(const std::string& text)> on_search;
  };

  Sidebar(GtkBuilder* builder, Listener listener);
  ~Sidebar();
  Sidebar(const Sidebar&) = delete;
  Sidebar& operator=(const Sidebar&) = delete;

  void ShowContents(const std::vector<ContentsEntry>& entries);
  void ShowAnswer(const SearchAnswer& answer);

  /// Puts a text into the search entry, as if the person had typed it.
  void Search(const std::string& text);
  void FocusSearch();

  std::string text() const;
  unsigned hits() const { return hits_; }
  unsigned contents() const { return contents_; }
  bool is_complete() const { return is_complete_; }

 private:
  void SetUpLists();
  void ActivateContents(guint position);
  void ActivateResult(guint position);
  void OnTyped();

  const Listener listener_;
  GtkSearchEntry* entry_;
  GtkStack* stack_;
  GtkLabel* label_;
  GtkListView* contents_list_;
  GtkListView* results_list_;
  unsigned hits_ = 0;
  unsigned contents_ = 0;
  bool is_complete_ = false;
};

}  // namespace viewer

#endif  // VIEWER_APP_SIDEBAR_H_
