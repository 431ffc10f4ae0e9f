#include "viewer/app/page_pane.h"

#include <algorithm>
#include <utility>

#include "viewer/web/address.h"

namespace viewer {

PagePane::PagePane(Engine& engine, GtkStack* stack, double zoom,
                   PageView::Listener listener)
    : engine_(engine),
      stack_(stack),
      zoom_(zoom),
      listener_(std::move(listener)) {}

PageView& PagePane::View(PageKind kind) {
  auto& view = kind == PageKind::kLocal ? local_ : online_;
  if (!view) {
    auto listener = listener_;
    // A page that is out of sight may still be loading.
    listener.on_report = [this, &view](const auto& report) {
      if (current_ == view.get()) listener_.on_report(report);
    };
    view = std::make_unique<PageView>(engine_, kind, std::move(listener));
    webkit_web_view_set_zoom_level(view->web(), zoom_);
    gtk_stack_add_child(stack_, view->widget());
  }
  return *view;
}

void PagePane::Raise(PageView& view) {
  if (current_ == &view) return;
  earlier_ = std::exchange(current_, &view);
  gtk_stack_set_visible_child(stack_, view.widget());
}

void PagePane::Load(const std::string& uri) {
  auto& view = View(IsWebUrl(uri) ? PageKind::kOnline : PageKind::kLocal);
  Raise(view);
  view.Load(uri);
}

void PagePane::ShowProblem(const std::string& uri,
                           const std::string& sentence) {
  auto& view = View(PageKind::kLocal);
  Raise(view);
  view.ShowProblem(uri, sentence);
}

bool PagePane::CanGoBack() const {
  return current_ && (webkit_web_view_can_go_back(current_->web()) || earlier_);
}

bool PagePane::CanGoForward() const {
  return current_ && webkit_web_view_can_go_forward(current_->web());
}

void PagePane::GoBack() {
  if (!current_) return;
  if (webkit_web_view_can_go_back(current_->web())) {
    webkit_web_view_go_back(current_->web());
  } else if (earlier_) {
    Raise(*std::exchange(earlier_, nullptr));
  }
  listener_.on_change();
}

void PagePane::GoForward() {
  if (current_) webkit_web_view_go_forward(current_->web());
}

void PagePane::Reload() {
  if (current_) webkit_web_view_reload(current_->web());
}

void PagePane::SetZoom(double zoom) {
  zoom_ = std::clamp(zoom, 0.3, 5.0);
  for (const auto* view : {&local_, &online_}) {
    if (*view) webkit_web_view_set_zoom_level((*view)->web(), zoom_);
  }
}

std::string PagePane::PublicUrl() const {
  if (!current_) return {};
  const std::string uri = current_->Uri();
  const auto address = ParseAddress(uri);
  return address ? engine_.places().FileUrl(*address) : uri;
}

}  // namespace viewer
