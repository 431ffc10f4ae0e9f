// The browser of a sandbox, with a session bus and a portal of the test's own.
#include <gio/gio.h>
#include <gtest/gtest.h>

#include <future>
#include <thread>

#include "platform/linux/helpers/browser_portal.h"
#include "platform/linux/helpers/gobject_ptr.h"

namespace velmohelp {
namespace {

constexpr char kIntrospection[] =
    "<node><interface name='org.freedesktop.portal.OpenURI'>"
    "<method name='OpenURI'><arg type='s' direction='in'/>"
    "<arg type='s' direction='in'/><arg type='a{sv}' direction='in'/>"
    "<arg type='o' direction='out'/></method></interface></node>";

void OnCall(GDBusConnection*, const char*, const char*, const char*,
            const char*, GVariant* parameters, GDBusMethodInvocation* call,
            gpointer opened) {
  const char* url = nullptr;
  g_variant_get_child(parameters, 1, "&s", &url);
  if (std::string(url).starts_with("file:")) {
    g_dbus_method_invocation_return_dbus_error(call, "org.example.No", "no");
    return;
  }
  *static_cast<std::string*>(opened) = url;
  g_dbus_method_invocation_return_value(call, g_variant_new("(o)", "/request"));
}

class Portal : public ::testing::Test {
 protected:
  void SetUp() override {
    bus_.reset(g_test_dbus_new(G_TEST_DBUS_NONE));
    g_test_dbus_up(bus_.get());
  }
  void TearDown() override { g_test_dbus_down(bus_.get()); }

  /// Runs the portal on this thread while another one uses it.
  bool OpenWithPortal(const std::string& url) {
    connection_.reset(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    Register();
    auto answer =
        std::async(std::launch::async, [&] { return OpenThroughPortal(url); });
    while (answer.wait_for(std::chrono::seconds(0)) !=
           std::future_status::ready) {
      g_main_context_iteration(nullptr, FALSE);
    }
    connection_.reset();
    return answer.get();
  }

  const std::string& opened() const { return opened_; }

 private:
  void Register() {
    GDBusNodeInfo* node = g_dbus_node_info_new_for_xml(kIntrospection, nullptr);
    static const GDBusInterfaceVTable kTable = {&OnCall, nullptr, nullptr, {}};
    g_dbus_connection_register_object(
        connection_.get(), "/org/freedesktop/portal/desktop",
        node->interfaces[0], &kTable, &opened_, nullptr, nullptr);
    g_dbus_node_info_unref(node);
    GVariant* reply = g_dbus_connection_call_sync(
        connection_.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
        "org.freedesktop.DBus", "RequestName",
        g_variant_new("(su)", "org.freedesktop.portal.Desktop", 0), nullptr,
        G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr);
    if (reply != nullptr) g_variant_unref(reply);
  }

  ObjectPtr<GTestDBus> bus_;
  ObjectPtr<GDBusConnection> connection_;
  std::string opened_;
};

TEST_F(Portal, IsAskedForTheUrlAsItStands) {
  EXPECT_TRUE(OpenWithPortal("http://localhost/a%20b?c=d#e"));
  EXPECT_EQ(opened(), "http://localhost/a%20b?c=d#e");
}

TEST_F(Portal, MayRefuse) {
  EXPECT_FALSE(OpenWithPortal("file:///tmp/page.html"));
}

TEST_F(Portal, MayBeMissing) { EXPECT_FALSE(OpenThroughPortal("http://x/")); }

}  // namespace
}  // namespace velmohelp
