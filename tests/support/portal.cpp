#include "tests/support/portal.h"

#include <gio/gunixfdlist.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

namespace velmohelp::testing {
namespace {

constexpr char kName[] = "org.freedesktop.portal.Desktop";
constexpr char kPath[] = "/org/freedesktop/portal/desktop";
constexpr char kIntrospection[] =
    "<node><interface name='org.freedesktop.portal.OpenURI'>"
    "<method name='OpenURI'><arg type='s' direction='in'/>"
    "<arg type='s' direction='in'/><arg type='a{sv}' direction='in'/>"
    "<arg type='o' direction='out'/></method>"
    "<method name='OpenFile'><arg type='s' direction='in'/>"
    "<arg type='h' direction='in'/><arg type='a{sv}' direction='in'/>"
    "<arg type='o' direction='out'/></method></interface></node>";

std::string DocumentedHandle(std::string sender, const std::string& token) {
  sender.erase(0, 1);
  std::replace(sender.begin(), sender.end(), '.', '_');
  return std::string(kPath) + "/request/" + sender + "/" + token;
}

/// The path of the first file that came with a call.
std::string FileOf(GDBusMethodInvocation* call) {
  GUnixFDList* files = g_dbus_message_get_unix_fd_list(
      g_dbus_method_invocation_get_message(call));
  const int file = g_unix_fd_list_get(files, 0, nullptr);
  std::string path =
      std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file));
  close(file);
  return path;
}

}  // namespace

PrivateBus::PrivateBus(const std::string& service_folder)
    : bus_(g_test_dbus_new(G_TEST_DBUS_NONE)) {
  if (!service_folder.empty()) {
    g_test_dbus_add_service_dir(bus_.get(), service_folder.c_str());
  }
  g_test_dbus_up(bus_.get());
}

PrivateBus::~PrivateBus() { g_test_dbus_down(bus_.get()); }

ObjectPtr<GDBusConnection> ConnectToBus() {
  constexpr auto kFlags = static_cast<GDBusConnectionFlags>(
      G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
      G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
  const TextPtr address(
      g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!address) return nullptr;
  return ObjectPtr<GDBusConnection>(g_dbus_connection_new_for_address_sync(
      address.get(), kFlags, nullptr, nullptr, nullptr));
}

bool OwnName(GDBusConnection* bus, const char* name) {
  constexpr guint32 kPrimaryOwner = 1;
  GVariant* reply = g_dbus_connection_call_sync(
      bus, "org.freedesktop.DBus", "/org/freedesktop/DBus",
      "org.freedesktop.DBus", "RequestName", g_variant_new("(su)", name, 0),
      nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr);
  guint32 result = 0;
  if (reply != nullptr) {
    g_variant_get(reply, "(u)", &result);
    g_variant_unref(reply);
  }
  return result == kPrimaryOwner;
}

ServiceThread::ServiceThread()
    : context_(g_main_context_new()), loop_(g_main_loop_new(context_, FALSE)) {}

ServiceThread::~ServiceThread() {
  g_main_context_invoke(
      context_,
      +[](gpointer loop) -> gboolean {
        g_main_loop_quit(static_cast<GMainLoop*>(loop));
        return G_SOURCE_REMOVE;
      },
      loop_);
  if (thread_.joinable()) thread_.join();
  g_main_loop_unref(loop_);
  g_main_context_unref(context_);
}

void ServiceThread::Run() {
  thread_ = std::thread([this] { g_main_loop_run(loop_); });
}

PortalDouble::PortalDouble(const PortalBehaviour& behaviour)
    : behaviour_(behaviour) {
  static const GDBusInterfaceVTable kTable = {&OnCall, nullptr, nullptr, {}};
  const ServiceThread::Guard guard(thread_.context());
  bus_ = ConnectToBus();
  other_client_ = ConnectToBus();
  GDBusNodeInfo* node = g_dbus_node_info_new_for_xml(kIntrospection, nullptr);
  g_dbus_connection_register_object(bus_.get(), kPath, node->interfaces[0],
                                    &kTable, this, nullptr, nullptr);
  g_dbus_node_info_unref(node);
  OwnName(bus_.get(), kName);
  thread_.Run();
}

PortalDouble::~PortalDouble() {
  g_dbus_connection_close_sync(bus_.get(), nullptr, nullptr);
  g_dbus_connection_close_sync(other_client_.get(), nullptr, nullptr);
}

void PortalDouble::Choose() { Respond(bus_.get(), 0); }

bool PortalDouble::caller_is_on_the_bus() const {
  GVariant* reply = g_dbus_connection_call_sync(
      bus_.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
      "org.freedesktop.DBus", "NameHasOwner",
      g_variant_new("(s)", caller_.c_str()), nullptr, G_DBUS_CALL_FLAGS_NONE,
      -1, nullptr, nullptr);
  gboolean has_owner = FALSE;
  g_variant_get(reply, "(b)", &has_owner);
  g_variant_unref(reply);
  return has_owner != 0;
}

void PortalDouble::OnCall(GDBusConnection*, const char* sender, const char*,
                          const char*, const char* method, GVariant* arguments,
                          GDBusMethodInvocation* call, gpointer self) {
  auto* portal = static_cast<PortalDouble*>(self);
  portal->caller_ = sender;
  portal->method_ = method;
  portal->Answer(arguments, call);
  portal->called_.set_value();
}

void PortalDouble::Answer(GVariant* arguments, GDBusMethodInvocation* call) {
  const char* text = nullptr;
  if (method_ == "OpenURI") g_variant_get_child(arguments, 1, "&s", &text);
  target_ = text != nullptr ? text : FileOf(call);
  if (behaviour_.fails) {
    g_dbus_method_invocation_return_dbus_error(
        call, "org.freedesktop.portal.Error.NotAllowed", "locked down");
    return;
  }
  GVariant* options = g_variant_get_child_value(arguments, 2);
  const char* token = "";
  const char* activation_token = "";
  g_variant_lookup(options, "handle_token", "&s", &token);
  g_variant_lookup(options, "activation_token", "&s", &activation_token);
  activation_token_ = activation_token;
  handle_ = behaviour_.own_handle ? std::string(kPath) + "/request/own"
                                  : DocumentedHandle(caller_, token);
  g_variant_unref(options);
  if (behaviour_.forged) Respond(other_client_.get(), 0);
  const bool responds = behaviour_.response.has_value();
  if (responds && behaviour_.responds_first) {
    Respond(bus_.get(), *behaviour_.response);
  }
  g_dbus_method_invocation_return_value(call,
                                        g_variant_new("(o)", handle_.c_str()));
  if (responds && !behaviour_.responds_first) {
    Respond(bus_.get(), *behaviour_.response);
  }
}

void PortalDouble::Respond(GDBusConnection* from, unsigned response) {
  g_dbus_connection_emit_signal(
      from, caller_.c_str(), handle_.c_str(), "org.freedesktop.portal.Request",
      "Response", g_variant_new("(ua{sv})", response, nullptr), nullptr);
  g_dbus_connection_flush_sync(from, nullptr, nullptr);
}

}  // namespace velmohelp::testing
