// The commands of a window. Every one has a key.
#include <glib/gi18n.h>

#include <array>
#include <functional>
#include <utility>

#include "viewer/app/help_window.h"
#include "viewer/app/preferences_window.h"
#include "viewer/app/printing.h"
#include "viewer/app/ui.h"

namespace viewer {
namespace {

using Command = std::function<void(const std::string&)>;

void FreeCommand(gpointer command, GClosure*) {
  delete static_cast<Command*>(command);
}

void Run(GSimpleAction*, GVariant* parameter, gpointer data) {
  const auto& command = *static_cast<Command*>(data);
  command(parameter ? g_variant_get_string(parameter, nullptr) : "");
}

void Add(AdwApplicationWindow* window, const char* name, Command command,
         const GVariantType* type = nullptr) {
  const ObjectPtr<GSimpleAction> action(g_simple_action_new(name, type));
  g_signal_connect_data(action.get(), "activate", G_CALLBACK(Run),
                        new Command(std::move(command)), FreeCommand,
                        GConnectFlags(0));
  g_action_map_add_action(G_ACTION_MAP(window), G_ACTION(action.get()));
}

}  // namespace

class WindowActions {
 public:
  explicit WindowActions(HelpWindow& window) : w_(window) {}

  void AddAll() {
    AddNavigation();
    AddSearch();
    AddZoom();
    AddOutput();
    AddDialogs();
  }

 private:
  void Add(const char* name, std::function<void()> run) {
    viewer::Add(w_.window_, name,
                [run = std::move(run)](const std::string&) { run(); });
  }

  void AddNavigation() {
    HelpWindow& w = w_;
    Add("back", [&w] { w.pane_->GoBack(); });
    Add("forward", [&w] { w.pane_->GoForward(); });
    Add("home", [&w] { w.ShowHome(); });
    Add("reload", [&w] { w.pane_->Reload(); });
    Add("dismiss-notice", [&w] { w.ShowNotice({}); });
    Add("close", [&w] { gtk_window_close(GTK_WINDOW(w.window_)); });
  }

  void AddSearch() {
    HelpWindow& w = w_;
    Add("search", [&w] {
      w.ShowSide(true);
      w.sidebar_->FocusSearch();
    });
    Add("sidebar", [&w] {
      auto* flap = ADW_FLAP(ObjectOf(w.builder_.get(), "flap"));
      adw_flap_set_reveal_flap(flap, !adw_flap_get_reveal_flap(flap));
    });
    Add("find", [&w] {
      if (w.pane_->current()) w.find_->Open();
    });
    Add("find-next", [&w] { w.find_->Next(); });
    Add("find-previous", [&w] { w.find_->Previous(); });
  }

  void AddZoom() {
    HelpWindow& w = w_;
    const auto set = [&w](double zoom) {
      w.pane_->SetZoom(zoom);
      w.OnChange();
    };
    Add("zoom-in", [&w, set] { set(w.pane_->zoom() * 1.1); });
    Add("zoom-out", [&w, set] { set(w.pane_->zoom() / 1.1); });
    Add("zoom-reset", [set] { set(1); });
  }

  void AddOutput() {
    HelpWindow& w = w_;
    Add("print", [&w] {
      if (w.pane_->current()) {
        Print(w.pane_->current()->web(), GTK_WINDOW(w.window_));
      }
    });
    Add("save-pdf", [&w] { w.SavePdf(); });
    Add("copy-link", [&w] {
      gdk_clipboard_set_text(gtk_widget_get_clipboard(GTK_WIDGET(w.window_)),
                             w.pane_->PublicUrl().c_str());
      w.Toast(_("Link copied"));
    });
    Add("open-in-browser", [&w] {
      if (const auto url = w.pane_->PublicUrl(); !url.empty()) {
        w.OpenInBrowser(url);
      }
    });
  }

  void AddDialogs() {
    HelpWindow& w = w_;
    Add("preferences", [&w] { ShowPreferences(GTK_WINDOW(w.window_)); });
    const auto builder = LoadUi("shortcuts");
    gtk_application_window_set_help_overlay(
        GTK_APPLICATION_WINDOW(w.window_),
        GTK_SHORTCUTS_WINDOW(ObjectOf(builder.get(), "help_overlay")));
  }

  HelpWindow& w_;
};

void AddWindowActions(HelpWindow& window) { WindowActions(window).AddAll(); }

}  // namespace viewer
