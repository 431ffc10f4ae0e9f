// Finds a text in the page that is shown.
#ifndef VIEWER_APP_FIND_BAR_H_
#define VIEWER_APP_FIND_BAR_H_

#include <gtk/gtk.h>
#include <webkit/webkit.h>

#include <functional>

#include "viewer/gobject_ptr.h"

namespace viewer {

class FindBar {
 public:
  FindBar(GtkBuilder* builder, std::function<void()> on_change);
  ~FindBar();
  FindBar(const FindBar&) = delete;
  FindBar& operator=(const FindBar&) = delete;

  /// From now on finds in this view.
  void SetView(WebKitWebView* view);
  void Open();
  void Next();
  void Previous();
  bool is_open() const;
  unsigned matches() const { return matches_; }

 private:
  void Start();
  void ShowMatches(unsigned matches);
  void Disconnect();

  const std::function<void()> on_change_;
  GtkSearchBar* bar_;
  GtkSearchEntry* entry_;
  GtkLabel* label_;
  ObjectPtr<WebKitFindController> controller_;
  unsigned matches_ = 0;
};

}  // namespace viewer

#endif  // VIEWER_APP_FIND_BAR_H_
