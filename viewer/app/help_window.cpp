#include "viewer/app/help_window.h"

#include <glib/gi18n.h>

#include <utility>

#include "viewer/app/printing.h"
#include "viewer/app/ui.h"
#include "viewer/content/preferences.h"
#include "viewer/content/search_query.h"
#include "viewer/web/address.h"

namespace viewer {
namespace {

// A sentence with a text in place of its "%s".
std::string Filled(const char* sentence, const std::string& text) {
  const std::string valid =
      Adopt(g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
  std::string filled = sentence;
  if (const auto at = filled.find("%s"); at != std::string::npos) {
    filled.replace(at, 2, valid);
  }
  return filled;
}

// The name that the person knows the page by; no path of this machine.
std::string ShortTitle(const PageView& page) {
  const std::string title = page.Title();
  return title.empty() ? _("Help") : title;
}

}  // namespace

HelpWindow::HelpWindow(GtkApplication* application, Engine& engine,
                       ClientThread& client, const Request& first,
                       Listener listener)
    : listener_(std::move(listener)),
      client_(client),
      engine_(engine),
      name_(first.product),
      memory_(LoadWindowMemory()),
      builder_(LoadUi("window")),
      window_(ADW_APPLICATION_WINDOW(ObjectOf(builder_.get(), "window"))),
      pane_(std::make_unique<PagePane>(
          engine, GTK_STACK(ObjectOf(builder_.get(), "pages")), memory_.zoom,
          PaneListener())),
      sidebar_(std::make_unique<Sidebar>(
          builder_.get(),
          Sidebar::Listener{
              .on_page = [this](const auto& uri) { LoadPage(uri); },
              .on_result = [this](const auto& uri,
                                  const auto& text) { OnResult(uri, text); },
              .on_search = [this](const auto& text) { OnSearch(text); }})),
      find_(std::make_unique<FindBar>(builder_.get(), [this] { OnChange(); })),
      product_(std::make_unique<Product>(
          engine, client, first.product, first.locale,
          Product::Listener{.on_contents =
                                [this](const auto& entries) {
                                  sidebar_->ShowContents(entries);
                                  OnChange();
                                },
                            .on_answer =
                                [this](const auto& answer) {
                                  sidebar_->ShowAnswer(answer);
                                  OnChange();
                                }})),
      self_(std::make_shared<HelpWindow*>(this)) {
  gtk_window_set_application(GTK_WINDOW(window_), application);
  gtk_window_set_default_size(GTK_WINDOW(window_), memory_.width,
                              memory_.height);
  gtk_window_set_title(GTK_WINDOW(window_), _("Help"));
  AddWindowActions(*this);
  g_signal_connect_swapped(window_, "close-request",
                           G_CALLBACK(+[](HelpWindow* self) -> gboolean {
                             self->OnClosed();
                             return FALSE;
                           }),
                           this);
}

HelpWindow::~HelpWindow() {
  *self_ = nullptr;
  g_signal_handlers_disconnect_by_data(window_, this);
}

PageView::Listener HelpWindow::PaneListener() {
  return {.on_report = [this](const auto& report) { OnReport(report); },
          .on_change = [this] { OnChange(); },
          .on_outside_link = [this](const auto& url) { OpenInBrowser(url); },
          .on_loaded = [this] { Highlight(); }};
}

void HelpWindow::OnClosed() {
  memory_.zoom = pane_->zoom();
  gtk_window_get_default_size(GTK_WINDOW(window_), &memory_.width,
                              &memory_.height);
  SaveWindowMemory(memory_);
  listener_.on_closed();
}

void HelpWindow::Raise(const std::string& activation_token) {
  if (!activation_token.empty()) {
    gtk_window_set_startup_id(GTK_WINDOW(window_), activation_token.c_str());
  }
  gtk_window_present(GTK_WINDOW(window_));
}

void HelpWindow::Show(const Request& request,
                      const std::string& activation_token) {
  ++state_.requests;
  ShowNotice({});
  words_.clear();
  // A page that the client has found is shown at once. Whatever needs the
  // client again waits for it.
  if (request.kind == Request::kUrl) ShowUrl(request);
  Raise(activation_token);
  product_->Prepare(request.locale, [this, request] {
    switch (request.kind) {
      case Request::kUrl:
        break;
      case Request::kPage:
        ShowPage(request.text);
        break;
      case Request::kSearch:
        ShowSearch(request.text);
        break;
      case Request::kUnknown:
        ShowNotice(
            _("The application asked for something that this viewer "
              "does not know."));
        ShowHomeUnlessPage();
        break;
      case Request::kHome:
        ShowHome();
        break;
    }
  });
}

void HelpWindow::ShowUrl(const Request& request) {
  if (!IsWebUrl(request.text)) {
    const auto address = engine_.places().Locate(request.text);
    if (!address) {
      return pane_->ShowProblem(request.text,
                                _("This is not the address of a page."));
    }
    product_->Adopt(address->Uri());
    return LoadPage(address->Uri());
  }
  // The client decides whether a page comes from the network. A URL that the
  // program itself names is opened all the same.
  if (request.is_explicit || IsOnlineAllowed()) return LoadPage(request.text);
  pane_->ShowProblem(request.text, _("Online help is switched off."));
}

void HelpWindow::ShowPage(const std::string& page_id) {
  product_->FindPage(page_id, [this, page_id](const std::string& uri) {
    uri.empty() ? ShowMissingPage(page_id) : LoadPage(uri);
  });
}

void HelpWindow::ShowMissingPage(const std::string& page_id) {
  if (!product_->HasFolders()) return ShowNothing();
  ShowNotice(Filled(_("This help has no page named “%s”."), page_id));
  ShowHomeUnlessPage();
  std::string text;
  for (const auto& word : WordsOfId(page_id)) {
    text += text.empty() ? word : " " + word;
  }
  ShowSide(true);
  sidebar_->Search(text);
}

void HelpWindow::ShowSearch(const std::string& text) {
  if (!product_->HasFolders()) return ShowNothing();
  ShowHomeUnlessPage();
  ShowSide(true);
  sidebar_->Search(text);
}

void HelpWindow::ShowHome() {
  const std::string home = product_->Home();
  home.empty() ? ShowNothing() : LoadPage(home);
}

void HelpWindow::ShowHomeUnlessPage() {
  if (!pane_->current()) ShowHome();
}

void HelpWindow::ShowNothing() {
  pane_->ShowProblem(
      "about:blank",
      Filled(_("No help of “%s” is installed on this computer."), name_));
}

void HelpWindow::LoadPage(const std::string& uri) {
  // A script may have been given a web address where a page was expected.
  if (!IsWebUrl(uri)) {
    const auto address = ParseAddress(uri);
    if (!address || !engine_.places().Admit(*address)) return;
  }
  state_.highlights = 0;
  pane_->Load(uri);
  find_->SetView(pane_->current()->web());
}

void HelpWindow::ShowNotice(const std::string& sentence) {
  state_.notice = sentence;
  auto* label = GTK_LABEL(ObjectOf(builder_.get(), "notice_label"));
  gtk_label_set_label(label, sentence.c_str());
  gtk_revealer_set_reveal_child(
      GTK_REVEALER(ObjectOf(builder_.get(), "notice_revealer")),
      !sentence.empty());
  OnChange();
}

void HelpWindow::ShowSide(bool shows) {
  adw_flap_set_reveal_flap(ADW_FLAP(ObjectOf(builder_.get(), "flap")), shows);
}

void HelpWindow::OnReport(const PageReport& report) {
  state_.anchor = report.anchor;
  state_.anchor_found = report.found;
  state_.anchor_top = report.top;
  state_.view_height = report.height;
  if (report.event == "painted") ++state_.painted;
  if (report.event == "settled") {
    ++state_.settled;
    state_.shown = state_.requests;
    // Only now, so that neither index nor contents delay the page.
    product_->Refresh();
  }
  OnChange();
}

void HelpWindow::OnChange() {
  // While the window is being built, its parts already report.
  if (!self_) return;
  const auto* page = pane_->current();
  if (page) {
    const std::string title = ShortTitle(*page);
    adw_window_title_set_title(
        ADW_WINDOW_TITLE(ObjectOf(builder_.get(), "title")), title.c_str());
    gtk_window_set_title(GTK_WINDOW(window_), title.c_str());
  }
  const auto enable = [this](const char* name, bool is_enabled) {
    GAction* action = g_action_map_lookup_action(G_ACTION_MAP(window_), name);
    g_simple_action_set_enabled(G_SIMPLE_ACTION(action), is_enabled);
  };
  enable("back", pane_->CanGoBack());
  enable("forward", pane_->CanGoForward());
  listener_.on_change();
}

void HelpWindow::OnSearch(const std::string& text) {
  if (!text.empty()) product_->Search(text);
  OnChange();
}

void HelpWindow::OnResult(const std::string& address, const std::string& text) {
  words_ = WordsOf(text);
  LoadPage(address);
}

void HelpWindow::Highlight() {
  if (words_.empty() || !pane_->current()) return;
  pane_->current()->Highlight(words_, [self = self_](int count) {
    if (!*self) return;
    (*self)->state_.highlights = count;
    (*self)->OnChange();
  });
}

void HelpWindow::OpenInBrowser(const std::string& url) {
  client_.Ask([url] { return viewer::OpenInBrowser(url); },
              [self = self_](bool is_open) {
                if (*self && !is_open) {
                  (*self)->Toast(_("No browser could be opened."));
                }
              });
}

void HelpWindow::SavePdf() {
  if (!pane_->current()) return;
  AskAndSavePdf(pane_->current()->web(), GTK_WINDOW(window_),
                [self = self_](bool is_saved) {
                  if (*self) {
                    (*self)->Toast(is_saved
                                       ? _("Saved as PDF")
                                       : _("The page could not be saved."));
                  }
                });
}

void HelpWindow::Toast(const char* sentence) {
  state_.toast = sentence;
  adw_toast_overlay_add_toast(
      ADW_TOAST_OVERLAY(ObjectOf(builder_.get(), "toasts")),
      adw_toast_new(sentence));
  OnChange();
}

WindowState HelpWindow::State() const {
  WindowState state = state_;
  if (const auto* page = pane_->current()) {
    state.uri = page->Uri();
    state.title = page->Title();
    state.problem = page->Problem();
  }
  state.search = sidebar_->text();
  state.hits = sidebar_->hits();
  state.search_complete = sidebar_->is_complete();
  state.contents = sidebar_->contents();
  state.is_finding = find_->is_open();
  state.matches = find_->matches();
  state.zoom = pane_->zoom();
  return state;
}

}  // namespace viewer
