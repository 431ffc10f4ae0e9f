#include "viewer/app/application.h"

#include <array>
#include <utility>

#include "viewer/app/bus_service.h"
#include "viewer/app/preferences_window.h"
#include "viewer/content/help_client.h"
#include "viewer/identity.h"

namespace viewer {
namespace {

struct Keys {
  const char* action;
  std::array<const char*, 4> accelerators;
};

constexpr auto kKeys = std::to_array<Keys>({
    {"win.back", {"<Alt>Left"}},
    {"win.forward", {"<Alt>Right"}},
    {"win.home", {"<Alt>Home"}},
    {"win.reload", {"F5", "<Ctrl>r"}},
    {"win.search", {"<Ctrl>k"}},
    {"win.sidebar", {"F9"}},
    {"win.find", {"<Ctrl>f"}},
    {"win.find-next", {"<Ctrl>g"}},
    {"win.find-previous", {"<Ctrl><Shift>g"}},
    {"win.zoom-in", {"<Ctrl>plus", "<Ctrl>equal", "<Ctrl>KP_Add"}},
    {"win.zoom-out", {"<Ctrl>minus", "<Ctrl>KP_Subtract"}},
    {"win.zoom-reset", {"<Ctrl>0", "<Ctrl>KP_0"}},
    {"win.print", {"<Ctrl>p"}},
    {"win.save-pdf", {"<Ctrl><Shift>p"}},
    {"win.copy-link", {"<Ctrl>l"}},
    {"win.open-in-browser", {"<Ctrl>o"}},
    {"win.preferences", {"<Ctrl>comma"}},
    {"win.close", {"<Ctrl>w"}},
    {"app.quit", {"<Ctrl>q"}},
});

// Before the page that has the keyboard: no page can keep the viewer's keys
// from the person.
void TakeKeysFirst(GtkApplication*, GtkWindow* window, gpointer) {
  GtkEventController* controller = gtk_shortcut_controller_new();
  gtk_event_controller_set_propagation_phase(controller, GTK_PHASE_CAPTURE);
  for (const auto& keys : kKeys) {
    for (const char* accelerator : keys.accelerators) {
      if (!accelerator) continue;
      gtk_shortcut_controller_add_shortcut(
          GTK_SHORTCUT_CONTROLLER(controller),
          gtk_shortcut_new(gtk_shortcut_trigger_parse_string(accelerator),
                           gtk_named_action_new(keys.action)));
    }
  }
  gtk_widget_add_controller(GTK_WIDGET(window), controller);
}

void Quit(GSimpleAction*, GVariant*, gpointer application) {
  // Each window remembers its size when it closes.
  GList* windows =
      g_list_copy(gtk_application_get_windows(GTK_APPLICATION(application)));
  for (GList* window = windows; window; window = window->next) {
    gtk_window_close(GTK_WINDOW(window->data));
  }
  g_list_free(windows);
  g_application_quit(G_APPLICATION(application));
}

void AddQuit(GActionMap* application) {
  const ObjectPtr<GSimpleAction> quit(g_simple_action_new("quit", nullptr));
  g_signal_connect(quit.get(), "activate", G_CALLBACK(Quit), application);
  g_action_map_add_action(application, G_ACTION(quit.get()));
}

std::string TokenOf(GApplicationCommandLine* line) {
  const char* token =
      g_application_command_line_getenv(line, "XDG_ACTIVATION_TOKEN");
  return Copy(token);
}

}  // namespace

Application::Application()
    : application_(
          adw_application_new(VIEWER_ID, G_APPLICATION_HANDLES_COMMAND_LINE)) {
  Connect();
}

Application::~Application() = default;

void Application::Connect() {
  g_signal_connect(application_.get(), "window-added",
                   G_CALLBACK(TakeKeysFirst), nullptr);
  g_signal_connect_swapped(
      application_.get(), "startup",
      G_CALLBACK(+[](Application* self) { self->OnStartup(); }), this);
  g_signal_connect(application_.get(), "command-line",
                   G_CALLBACK(+[](GApplication*, GApplicationCommandLine* line,
                                  Application* self) -> int {
                     return self->OnCommandLine(line);
                   }),
                   this);
}

int Application::Run(int argc, char** argv) {
  return g_application_run(G_APPLICATION(application_.get()), argc, argv);
}

void Application::OnStartup() {
  const auto locations = FindLocations();
  places_.AddPlace("downloaded", locations.downloaded);
  places_.AddPlace("installed", locations.installed);
  AddPreferenceActions(G_ACTION_MAP(application_.get()));
  AddQuit(G_ACTION_MAP(application_.get()));
  for (const auto& keys : kKeys) {
    gtk_application_set_accels_for_action(GTK_APPLICATION(application_.get()),
                                          keys.action,
                                          keys.accelerators.data());
  }
  GDBusConnection* bus =
      g_application_get_dbus_connection(G_APPLICATION(application_.get()));
  if (bus) bus_object_ = ExportService(bus, this);
}

int Application::OnCommandLine(GApplicationCommandLine* line) {
  int count = 0;
  char** words = g_application_command_line_get_arguments(line, &count);
  const bool is_request = count == 5;
  if (is_request) {
    Show(ParseRequest(words[1], words[2], words[3], words[4]), TokenOf(line));
  } else {
    g_application_command_line_printerr(
        line, "Usage: %s VERB PRODUCT LOCALE REQUEST\n", "velmohelp-viewer");
  }
  g_strfreev(words);
  return is_request ? 0 : 2;
}

Engine& Application::WebEngine() {
  if (!engine_) engine_ = std::make_unique<Engine>(places_);
  return *engine_;
}

void Application::Show(const Request& request,
                       const std::string& activation_token) {
  auto& window = windows_[request.product];
  if (!window) {
    window = std::make_unique<HelpWindow>(
        GTK_APPLICATION(application_.get()), WebEngine(), client_, request,
        HelpWindow::Listener{
            .on_change = [this,
                          name = request.product] { OnWindowChanged(name); },
            .on_closed = [this,
                          name = request.product] { OnWindowClosed(name); }});
  }
  window->Show(request, activation_token);
}

const HelpWindow* Application::Window(const std::string& product) const {
  const auto window = windows_.find(product);
  return window == windows_.end() ? nullptr : window->second.get();
}

void Application::OnWindowChanged(const std::string& product) {
  GDBusConnection* bus =
      g_application_get_dbus_connection(G_APPLICATION(application_.get()));
  if (bus) EmitChanged(bus, product);
}

void Application::OnWindowClosed(const std::string& product) {
  auto window = windows_.extract(product);
  if (window.empty()) return;
  // Not from within the window's own signal; and at the latest before the
  // engine ends, which waits for the pages of its views.
  closed_.push_back(std::move(window.mapped()));
  g_idle_add_once(
      [](gpointer self) { static_cast<Application*>(self)->ForgetClosed(); },
      this);
}

// The process ends with its last window, whatever else still holds the
// application.
void Application::ForgetClosed() {
  closed_.clear();
  if (windows_.empty()) g_application_quit(G_APPLICATION(application_.get()));
}

}  // namespace viewer
