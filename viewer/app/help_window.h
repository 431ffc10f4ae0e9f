// The window of one product.
#ifndef VIEWER_APP_HELP_WINDOW_H_
#define VIEWER_APP_HELP_WINDOW_H_

#include <adwaita.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "viewer/app/find_bar.h"
#include "viewer/app/page_pane.h"
#include "viewer/app/product.h"
#include "viewer/app/request.h"
#include "viewer/app/sidebar.h"
#include "viewer/app/window_memory.h"
#include "viewer/content/client_thread.h"

namespace viewer {

/// What is on the screen, for tests and benchmarks.
struct WindowState {
  std::string uri;
  std::string title;
  std::string notice;
  std::string problem;
  std::string anchor;
  bool anchor_found = false;
  double anchor_top = 0;
  double view_height = 0;
  unsigned painted = 0;
  unsigned settled = 0;
  /// How many requests the window has taken, and the last one whose page has
  /// settled.
  unsigned requests = 0;
  unsigned shown = 0;
  std::string search;
  unsigned hits = 0;
  bool search_complete = false;
  unsigned contents = 0;
  int highlights = 0;
  bool is_finding = false;
  unsigned matches = 0;
  double zoom = 1;
  /// The last sentence that was shown for a moment.
  std::string toast;
};

class HelpWindow {
 public:
  struct Listener {
    std::function<void()> on_change;
    std::function<void()> on_closed;
  };

  HelpWindow(GtkApplication* application, Engine& engine, ClientThread& client,
             const Request& first, Listener listener);
  ~HelpWindow();
  HelpWindow(const HelpWindow&) = delete;
  HelpWindow& operator=(const HelpWindow&) = delete;

  /// Shows what a request asks for, and raises the window with the token of the
  /// click or key that asked.
  void Show(const Request& request, const std::string& activation_token);

  WindowState State() const;

 private:
  friend class WindowActions;

  PageView::Listener PaneListener();
  void Raise(const std::string& activation_token);
  void ShowUrl(const Request& request);
  void ShowPage(const std::string& page_id);
  void ShowMissingPage(const std::string& page_id);
  void ShowSearch(const std::string& text);
  void ShowHome();
  void ShowHomeUnlessPage();
  void ShowNothing();
  void ShowNotice(const std::string& sentence);
  void LoadPage(const std::string& uri);
  void ShowSide(bool shows);

  void OnReport(const PageReport& report);
  void OnChange();
  void OnResult(const std::string& address, const std::string& text);
  void OnSearch(const std::string& text);
  void Highlight();
  void OpenInBrowser(const std::string& url);
  void SavePdf();
  void Toast(const char* sentence);
  void OnClosed();

  const Listener listener_;
  ClientThread& client_;
  Engine& engine_;
  const std::string name_;
  WindowMemory memory_;
  ObjectPtr<GtkBuilder> builder_;
  AdwApplicationWindow* window_;
  std::unique_ptr<PagePane> pane_;
  std::unique_ptr<Sidebar> sidebar_;
  std::unique_ptr<FindBar> find_;
  std::unique_ptr<Product> product_;
  WindowState state_;
  // Words to highlight once the page that holds them is loaded.
  std::vector<std::string> words_;
  std::shared_ptr<HelpWindow*> self_;
};

/// Adds the commands of a window.
void AddWindowActions(HelpWindow& window);

}  // namespace viewer

#endif  // VIEWER_APP_HELP_WINDOW_H_
