// One web view and what its pages may do.
#ifndef VIEWER_WEB_PAGE_VIEW_H_
#define VIEWER_WEB_PAGE_VIEW_H_

#include <webkit/webkit.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "viewer/web/engine.h"

namespace viewer {

/// What the viewer's script tells of a page.
struct PageReport {
  /// "painted": the page is on the screen; "settled": it is loaded to the end.
  std::string event;
  std::string anchor;
  bool found = false;
  /// Of the anchor and of the view, in CSS pixels.
  double top = 0;
  double height = 0;
};

class PageView {
 public:
  /// Called in the main loop while the view lives.
  struct Listener {
    std::function<void(const PageReport&)> on_report = [](const auto&) {};
    /// Address, title or history have changed.
    std::function<void()> on_change = [] {};
    /// The person has followed a link to another site.
    std::function<void(const std::string&)> on_outside_link = [](const auto&) {
    };
    std::function<void()> on_loaded = [] {};
  };

  PageView(Engine& engine, PageKind kind, Listener listener);
  ~PageView();
  PageView(const PageView&) = delete;
  PageView& operator=(const PageView&) = delete;

  WebKitWebView* web() const { return view_.get(); }
  GtkWidget* widget() const { return GTK_WIDGET(view_.get()); }

  void Load(const std::string& uri);
  /// Shows a plain page with a sentence, under the address that it is for.
  void ShowProblem(const std::string& uri, const std::string& sentence);
  /// The sentence, while it is shown.
  std::string Problem() const;
  std::string Uri() const;
  std::string Title() const;

  /// Marks words in the page; done gets how many were found.
  void Highlight(const std::vector<std::string>& words,
                 std::function<void(int)> done);
  /// The lists of links of the live document, as ReadContentsLines reads them.
  void ReadContents(std::function<void(const std::string&)> done);

 private:
  friend class PagePolicy;

  void Connect();
  void OnReport(JSCValue* value);
  void Describe(const std::string& text);
  void OnLoadChanged(WebKitLoadEvent event);
  bool OnLoadFailed(const std::string& uri, const GError* error);
  void OnTerminated();
  bool MayRestart();

  Engine& engine_;
  const PageKind kind_;
  const Listener listener_;
  ObjectPtr<WebKitWebView> view_;
  /// The site of the page that was asked for; links may stay within it.
  std::string site_;
  std::string requested_;
  std::string problem_;
  std::string problem_uri_;
  /// A page has been asked for; until it takes the place of the one that is
  /// shown, reports come from the latter.
  bool is_replacing_ = false;
  std::vector<std::int64_t> restarts_;
};

}  // namespace viewer

#endif  // VIEWER_WEB_PAGE_VIEW_H_
