#include "platform/linux/helpers/browser_portal.h"

#include <gio/gio.h>

#include "platform/linux/helpers/gobject_ptr.h"

namespace velmohelp {
namespace {

constexpr char kBusName[] = "org.freedesktop.portal.Desktop";
constexpr char kObjectPath[] = "/org/freedesktop/portal/desktop";
constexpr char kInterface[] = "org.freedesktop.portal.OpenURI";

/// No parent window, no options.
GVariant* Request(const std::string& url) {
  return g_variant_new("(ssa{sv})", "", url.c_str(), nullptr);
}

}  // namespace

bool IsInSandbox() {
  return g_file_test("/.flatpak-info", G_FILE_TEST_EXISTS) != 0;
}

bool OpenThroughPortal(const std::string& url) {
  const ObjectPtr<GDBusConnection> bus(
      g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!bus) return false;
  GVariant* reply = g_dbus_connection_call_sync(
      bus.get(), kBusName, kObjectPath, kInterface, "OpenURI", Request(url),
      nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr);
  if (reply == nullptr) return false;
  g_variant_unref(reply);
  return true;
}

}  // namespace velmohelp
