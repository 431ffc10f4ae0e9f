#include "platform/linux/helpers/browser_portal.h"

#include <gio/gunixfdlist.h>

#include <algorithm>

#include "platform/linux/files.h"
#include "util/uri.h"

namespace velmohelp {
namespace {

constexpr char kBusName[] = "org.freedesktop.portal.Desktop";
constexpr char kObjectPath[] = "/org/freedesktop/portal/desktop";
constexpr char kInterface[] = "org.freedesktop.portal.OpenURI";
constexpr char kRequestInterface[] = "org.freedesktop.portal.Request";

/// For an object path, where "-" is not allowed. Random, so that no other
/// client of the bus can ask for the same path.
std::string NewToken() {
  std::string token = "velmohelp_" + Text(TextPtr(g_uuid_string_random()));
  std::replace(token.begin(), token.end(), '-', '_');
  return token;
}

/// The path of a request before it is made, as the portal documents it.
std::string HandleOf(GDBusConnection* bus, const std::string& token) {
  std::string sender = g_dbus_connection_get_unique_name(bus) + 1;
  std::replace(sender.begin(), sender.end(), '.', '_');
  return std::string(kObjectPath) + "/request/" + sender + "/" + token;
}

/// The library passes on what the host was given for this URL. The bus refuses
/// a text that is not valid UTF-8.
const char* ActivationToken() {
  const char* token = g_getenv("XDG_ACTIVATION_TOKEN");
  const bool is_usable = token != nullptr && *token != '\0' &&
                         g_utf8_validate(token, -1, nullptr) != 0;
  return is_usable ? token : nullptr;
}

GVariant* Options(const std::string& token) {
  GVariantBuilder options;
  g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
  g_variant_builder_add(&options, "{sv}", "handle_token",
                        g_variant_new_string(token.c_str()));
  if (const char* activation_token = ActivationToken()) {
    g_variant_builder_add(&options, "{sv}", "activation_token",
                          g_variant_new_string(activation_token));
  }
  return g_variant_builder_end(&options);
}

bool IsFile(const std::string& url) {
  const char* scheme = g_uri_peek_scheme(url.c_str());
  return scheme != nullptr && std::string(scheme) == "file";
}

/// The file at a file: URL; no descriptor when it is not on this machine.
UniqueFd OpenFileAt(const std::string& url) {
  const std::string host = HostOfUri(url).value_or("");
  if (!host.empty() && host != "localhost") return {};
  return OpenRegularFile(Unescaped(PathOfUri(url)));
}

/// Null when the descriptor table is full.
ObjectPtr<GUnixFDList> ListOf(const UniqueFd& file) {
  ObjectPtr<GUnixFDList> list(g_unix_fd_list_new());
  if (g_unix_fd_list_append(list.get(), file.get(), nullptr) != 0) return {};
  return list;
}

gboolean OnTimeout(gpointer timed_out) {
  *static_cast<bool*>(timed_out) = true;
  return G_SOURCE_REMOVE;
}

/// A timer of a context, for as long as this object exists.
class Timer {
 public:
  Timer(GMainContext* context, std::chrono::milliseconds timeout)
      : source_(g_timeout_source_new(static_cast<guint>(timeout.count()))) {
    g_source_set_callback(source_, &OnTimeout, &timed_out_, nullptr);
    g_source_attach(source_, context);
  }
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer() {
    g_source_destroy(source_);
    g_source_unref(source_);
  }

  bool timed_out() const { return timed_out_; }

 private:
  GSource* source_;
  bool timed_out_ = false;
};

struct KeyFileFree {
  void operator()(GKeyFile* file) const { g_key_file_unref(file); }
};

/// Not the connection that GIO shares: that one ends the program when the bus
/// goes away. Null when there is no bus.
ObjectPtr<GDBusConnection> ConnectToSessionBus() {
  const TextPtr address(
      g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!address) return nullptr;
  constexpr auto kFlags = static_cast<GDBusConnectionFlags>(
      G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
      G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
  return ObjectPtr<GDBusConnection>(g_dbus_connection_new_for_address_sync(
      address.get(), kFlags, nullptr, nullptr, nullptr));
}

struct VariantUnref {
  void operator()(GVariant* value) const { g_variant_unref(value); }
};
using VariantPtr = std::unique_ptr<GVariant, VariantUnref>;

/// A question to the bus itself; null when it fails.
VariantPtr AskBus(GDBusConnection* bus, const char* method, GVariant* arguments,
                  const char* type) {
  return VariantPtr(g_dbus_connection_call_sync(
      bus, "org.freedesktop.DBus", "/org/freedesktop/DBus",
      "org.freedesktop.DBus", method, arguments, G_VARIANT_TYPE(type),
      G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
}

bool IsPortalRunning(GDBusConnection* bus) {
  const VariantPtr reply =
      AskBus(bus, "NameHasOwner", g_variant_new("(s)", kBusName), "(b)");
  gboolean has_owner = FALSE;
  if (reply) g_variant_get(reply.get(), "(b)", &has_owner);
  return has_owner != 0;
}

/// The bus starts it when somebody calls it.
bool IsPortalActivatable(GDBusConnection* bus) {
  const VariantPtr reply = AskBus(bus, "ListActivatableNames", nullptr, "(as)");
  if (!reply) return false;
  const VariantPtr names(g_variant_get_child_value(reply.get(), 0));
  const std::unique_ptr<const char*, decltype(&g_free)> list(
      g_variant_get_strv(names.get(), nullptr), &g_free);
  return g_strv_contains(list.get(), kBusName) != 0;
}

}  // namespace

/// A sandbox's file says what runs in it. An empty one in the root of a machine
/// is what other programs' sandboxes leave there when root starts them, and
/// hosts outside must not lose their browser to it.
bool IsInSandbox() {
  const std::unique_ptr<GKeyFile, KeyFileFree> info(g_key_file_new());
  return g_key_file_load_from_file(info.get(), "/.flatpak-info",
                                   G_KEY_FILE_NONE, nullptr) != 0 &&
         (g_key_file_has_group(info.get(), "Application") != 0 ||
          g_key_file_has_group(info.get(), "Runtime") != 0);
}

bool PortalTakes(const std::string& url) {
  if (IsFile(url) && !OpenFileAt(url)) return false;
  const auto bus = ConnectToSessionBus();
  return bus && (IsPortalRunning(bus.get()) || IsPortalActivatable(bus.get()));
}

PortalRequest::PortalRequest(const std::string& url)
    : context_(g_main_context_new()), token_(NewToken()) {
  g_main_context_push_thread_default(context_.get());
  Connect();
  if (bus_) {
    Send(url);
  } else {
    outcome_ = PortalOutcome::kNotOpened;
  }
}

PortalRequest::~PortalRequest() {
  if (bus_) g_dbus_connection_close_sync(bus_.get(), nullptr, nullptr);
  g_main_context_pop_thread_default(context_.get());
}

PortalOutcome PortalRequest::Await(std::chrono::milliseconds timeout) {
  const Timer timer(context_.get(), timeout);
  while (outcome_ == PortalOutcome::kPending && !timer.timed_out()) {
    g_main_context_iteration(context_.get(), TRUE);
  }
  return outcome_;
}

void PortalRequest::Connect() {
  bus_ = ConnectToSessionBus();
  if (!bus_) return;
  const auto on_closed =
      +[](GDBusConnection*, gboolean, GError*, gpointer outcome) {
        *static_cast<PortalOutcome*>(outcome) = PortalOutcome::kNotOpened;
      };
  g_signal_connect(bus_.get(), "closed", G_CALLBACK(on_closed), &outcome_);
}

void PortalRequest::Send(const std::string& url) {
  Subscribe(HandleOf(bus_.get(), token_));
  if (!IsFile(url)) {
    Call("OpenURI",
         g_variant_new("(ss@a{sv})", "", url.c_str(), Options(token_)),
         nullptr);
    return;
  }
  const UniqueFd file = OpenFileAt(url);
  const auto files = file ? ListOf(file) : nullptr;
  if (!files) {
    outcome_ = PortalOutcome::kNotOpened;
    return;
  }
  // The first descriptor of the list.
  Call("OpenFile", g_variant_new("(sh@a{sv})", "", 0, Options(token_)),
       files.get());
}

void PortalRequest::Call(const char* method, GVariant* arguments,
                         GUnixFDList* files) {
  const auto on_reply = +[](GObject* bus, GAsyncResult* result, gpointer self) {
    GVariant* reply = g_dbus_connection_call_with_unix_fd_list_finish(
        G_DBUS_CONNECTION(bus), nullptr, result, nullptr);
    static_cast<PortalRequest*>(self)->OnReply(reply);
    if (reply != nullptr) g_variant_unref(reply);
  };
  g_dbus_connection_call_with_unix_fd_list(
      bus_.get(), kBusName, kObjectPath, kInterface, method, arguments,
      G_VARIANT_TYPE("(o)"), G_DBUS_CALL_FLAGS_NONE, G_MAXINT, files, nullptr,
      on_reply, this);
}

void PortalRequest::Subscribe(const std::string& handle) {
  const auto on_response =
      +[](GDBusConnection*, const char*, const char*, const char*, const char*,
          GVariant* arguments, gpointer outcome) {
        guint32 response = 1;
        if (g_variant_is_of_type(arguments, G_VARIANT_TYPE("(ua{sv})")) != 0) {
          g_variant_get_child(arguments, 0, "u", &response);
        }
        *static_cast<PortalOutcome*>(outcome) =
            response == 0 ? PortalOutcome::kOpened : PortalOutcome::kNotOpened;
      };
  handle_ = handle;
  g_dbus_connection_signal_subscribe(
      bus_.get(), kBusName, kRequestInterface, "Response", handle.c_str(),
      nullptr, G_DBUS_SIGNAL_FLAGS_NONE, on_response, &outcome_, nullptr);
}

/// Null for an error. Portals before 0.9 choose the request's path themselves.
void PortalRequest::OnReply(GVariant* reply) {
  if (outcome_ != PortalOutcome::kPending) return;
  if (reply == nullptr) {
    outcome_ = PortalOutcome::kNotOpened;
    return;
  }
  const char* handle = nullptr;
  g_variant_get(reply, "(&o)", &handle);
  if (handle_ != handle) Subscribe(handle);
}

}  // namespace velmohelp
