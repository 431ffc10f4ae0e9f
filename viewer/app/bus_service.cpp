#include "viewer/app/bus_service.h"

#include "viewer/app/application.h"
#include "viewer/identity.h"

namespace viewer {
namespace {

constexpr char kInterface[] =
    "<node><interface name='" VIEWER_INTERFACE
    "'>"
    "<method name='Show'>"
    "<arg name='verb' type='s'/><arg name='product' type='s'/>"
    "<arg name='locale' type='s'/><arg name='request' type='s'/>"
    "<arg name='platform_data' type='a{sv}'/></method>"
    "<method name='State'><arg name='product' type='s'/>"
    "<arg name='state' type='a{sv}' direction='out'/></method>"
    "<signal name='Changed'><arg name='product' type='s'/></signal>"
    "</interface></node>";

GVariant* TextValue(const std::string& text) {
  return g_variant_new_take_string(
      g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
}

GVariant* Describe(const WindowState& state) {
  GVariantBuilder builder;
  g_variant_builder_init(&builder, G_VARIANT_TYPE("a{sv}"));
  const auto add = [&builder](const char* name, GVariant* value) {
    g_variant_builder_add(&builder, "{sv}", name, value);
  };
  add("uri", TextValue(state.uri));
  add("title", TextValue(state.title));
  add("notice", TextValue(state.notice));
  add("problem", TextValue(state.problem));
  add("anchor", TextValue(state.anchor));
  add("anchor-found", g_variant_new_boolean(state.anchor_found));
  add("anchor-top", g_variant_new_double(state.anchor_top));
  add("view-height", g_variant_new_double(state.view_height));
  add("painted", g_variant_new_uint32(state.painted));
  add("settled", g_variant_new_uint32(state.settled));
  add("requests", g_variant_new_uint32(state.requests));
  add("shown", g_variant_new_uint32(state.shown));
  add("search", TextValue(state.search));
  add("hits", g_variant_new_uint32(state.hits));
  add("search-complete", g_variant_new_boolean(state.search_complete));
  add("contents", g_variant_new_uint32(state.contents));
  add("highlights", g_variant_new_int32(state.highlights));
  add("finding", g_variant_new_boolean(state.is_finding));
  add("matches", g_variant_new_uint32(state.matches));
  add("zoom", g_variant_new_double(state.zoom));
  add("toast", TextValue(state.toast));
  return g_variant_new("(a{sv})", &builder);
}

void HandleShow(Application& application, GVariant* parameters) {
  const char* verb = nullptr;
  const char* product = nullptr;
  const char* locale = nullptr;
  const char* request = nullptr;
  GVariant* data = nullptr;
  g_variant_get(parameters, "(&s&s&s&s@a{sv})", &verb, &product, &locale,
                &request, &data);
  const char* token = "";
  g_variant_lookup(data, "activation-token", "&s", &token);
  application.Show(ParseRequest(verb, product, locale, request), token);
  g_variant_unref(data);
}

void HandleState(const Application& application, GVariant* parameters,
                 GDBusMethodInvocation* invocation) {
  const char* product = nullptr;
  g_variant_get(parameters, "(&s)", &product);
  const auto* window = application.Window(product);
  if (window) {
    g_dbus_method_invocation_return_value(invocation,
                                          Describe(window->State()));
  } else {
    g_dbus_method_invocation_return_error_literal(
        invocation, G_DBUS_ERROR, G_DBUS_ERROR_FAILED, "No such window");
  }
}

void Handle(GDBusConnection*, const char*, const char*, const char*,
            const char* method, GVariant* parameters,
            GDBusMethodInvocation* invocation, gpointer data) {
  auto& application = *static_cast<Application*>(data);
  if (g_str_equal(method, "State")) {
    return HandleState(application, parameters, invocation);
  }
  HandleShow(application, parameters);
  g_dbus_method_invocation_return_value(invocation, nullptr);
}

constexpr GDBusInterfaceVTable kHandlers = {.method_call = Handle,
                                            .get_property = nullptr,
                                            .set_property = nullptr,
                                            .padding = {}};

}  // namespace

guint ExportService(GDBusConnection* bus, Application* application) {
  GDBusNodeInfo* node = g_dbus_node_info_new_for_xml(kInterface, nullptr);
  const guint object = g_dbus_connection_register_object(
      bus, VIEWER_PATH, node->interfaces[0], &kHandlers, application, nullptr,
      nullptr);
  g_dbus_node_info_unref(node);
  return object;
}

void EmitChanged(GDBusConnection* bus, const std::string& product) {
  g_dbus_connection_emit_signal(
      bus, nullptr, VIEWER_PATH, VIEWER_INTERFACE, "Changed",
      g_variant_new("(@s)", TextValue(product)), nullptr);
}

}  // namespace viewer
