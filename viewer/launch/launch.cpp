// HelpViewer VERB PRODUCT LOCALE REQUEST: the program that the help client
// starts. A viewer that already runs gets the request over D-Bus, and this
// process ends when the viewer has taken it: a person who presses F1 a second
// time does not wait until the toolkit and the web engine are loaded again.
// Otherwise this process becomes the viewer.
#include <fcntl.h>
#include <gio/gio.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

#include "viewer/gobject_ptr.h"
#include "viewer/identity.h"

namespace {

using viewer::ErrorPtr;
using viewer::ObjectPtr;

// A viewer that does not take a request for so long is stuck; the person gets a
// second one instead of nothing.
constexpr int kHandOverMs = 5000;

const char* ActivationToken() {
  const char* token = g_getenv("XDG_ACTIVATION_TOKEN");
  return token ? token : g_getenv("DESKTOP_STARTUP_ID");
}

// The words are the caller's bytes; D-Bus closes the connection of who sends a
// text that is not UTF-8.
GVariant* Word(const char* bytes) {
  return g_variant_new_take_string(g_utf8_make_valid(bytes, -1));
}

GVariant* Request(char** words) {
  GVariantBuilder platform_data;
  g_variant_builder_init(&platform_data, G_VARIANT_TYPE("a{sv}"));
  if (const char* token = ActivationToken()) {
    g_variant_builder_add(&platform_data, "{sv}", "activation-token",
                          Word(token));
  }
  return g_variant_new("(@s@s@s@sa{sv})", Word(words[0]), Word(words[1]),
                       Word(words[2]), Word(words[3]), &platform_data);
}

bool HandOver(char** words) {
  GError* error = nullptr;
  const ObjectPtr<GDBusConnection> bus(
      g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, &error));
  if (bus) {
    GVariant* answer = g_dbus_connection_call_sync(
        bus.get(), VIEWER_ID, VIEWER_PATH, VIEWER_INTERFACE, "Show",
        Request(words), nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, kHandOverMs,
        nullptr, &error);
    if (answer) g_variant_unref(answer);
  }
  return !ErrorPtr(error);
}

// The application folder is two levels above this program's own file.
std::string WindowProgram() {
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  return (self.parent_path().parent_path() / VIEWER_WINDOW_PROGRAM).string();
}

// Whoever reads the host's output to its end must not wait for the viewer,
// which lives longer.
void LeaveStandardOutput() {
  const int null = open("/dev/null", O_RDWR | O_CLOEXEC);
  if (null < 0) return;
  dup2(null, STDIN_FILENO);
  dup2(null, STDOUT_FILENO);
  close(null);
}

}  // namespace

int main(int argc, char** argv) {
  LeaveStandardOutput();
  if (argc == 5 && HandOver(argv + 1)) return 0;
  const std::string program = WindowProgram();
  execv(program.c_str(), argv);
  std::perror(program.c_str());
  return 1;
}
