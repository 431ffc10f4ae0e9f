// The pages of a window: local ones and online ones, each kind in a view of its
// own, so that local pages share nothing with the network.
#ifndef VIEWER_APP_PAGE_PANE_H_
#define VIEWER_APP_PAGE_PANE_H_

#include <gtk/gtk.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "viewer/web/engine.h"
#include "viewer/web/page_view.h"

namespace viewer {

class PagePane {
 public:
  PagePane(Engine& engine, GtkStack* stack, double zoom,
           PageView::Listener listener);

  /// Loads a local address or a web URL.
  void Load(const std::string& uri);
  void ShowProblem(const std::string& uri, const std::string& sentence);

  /// The view that is shown; null before the first page.
  PageView* current() const { return current_; }

  bool CanGoBack() const;
  bool CanGoForward() const;
  void GoBack();
  void GoForward();
  void Reload();

  double zoom() const { return zoom_; }
  void SetZoom(double zoom);

  /// The address of the page as other programs know it: a file URL for a local
  /// page.
  std::string PublicUrl() const;

 private:
  PageView& View(PageKind kind);
  void Raise(PageView& view);

  Engine& engine_;
  GtkStack* stack_;
  double zoom_;
  const PageView::Listener listener_;
  std::unique_ptr<PageView> local_;
  std::unique_ptr<PageView> online_;
  PageView* current_ = nullptr;
  // The view that was shown before this one.
  PageView* earlier_ = nullptr;
};

}  // namespace viewer

#endif  // VIEWER_APP_PAGE_PANE_H_
