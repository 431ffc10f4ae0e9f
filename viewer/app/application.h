// The viewer: one process per session, one window per product.
#ifndef VIEWER_APP_APPLICATION_H_
#define VIEWER_APP_APPLICATION_H_

#include <adwaita.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "viewer/app/help_window.h"
#include "viewer/app/request.h"
#include "viewer/content/client_thread.h"
#include "viewer/gobject_ptr.h"
#include "viewer/web/engine.h"
#include "viewer/web/places.h"

namespace viewer {

class Application {
 public:
  Application();
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  int Run(int argc, char** argv);

  /// Shows a request in its product's window.
  void Show(const Request& request, const std::string& activation_token);

  /// Null when the product has no window.
  const HelpWindow* Window(const std::string& product) const;

 private:
  void Connect();
  void OnStartup();
  int OnCommandLine(GApplicationCommandLine* line);
  Engine& WebEngine();
  void OnWindowClosed(const std::string& product);
  void ForgetClosed();
  void OnWindowChanged(const std::string& product);

  ObjectPtr<AdwApplication> application_;
  Places places_;
  std::unique_ptr<Engine> engine_;
  ClientThread client_;
  std::map<std::string, std::unique_ptr<HelpWindow>> windows_;
  std::vector<std::unique_ptr<HelpWindow>> closed_;
  guint bus_object_ = 0;
};

}  // namespace viewer

#endif  // VIEWER_APP_APPLICATION_H_
