#include "viewer/web/engine.h"

#include "viewer/web/local_scheme.h"

namespace viewer {
namespace {

// Nothing listens at this proxy, so that whatever gets past the content policy
// ends on this machine.
constexpr char kDeadProxy[] = "http://127.0.0.1:0";

void CancelDownload(WebKitNetworkSession*, WebKitDownload* download, gpointer) {
  webkit_download_cancel(download);
}

ObjectPtr<WebKitNetworkSession> NewSession(PageKind kind) {
  ObjectPtr<WebKitNetworkSession> session(
      webkit_network_session_new_ephemeral());
  g_signal_connect(session.get(), "download-started",
                   G_CALLBACK(CancelDownload), nullptr);
  if (kind == PageKind::kLocal) {
    WebKitNetworkProxySettings* proxy =
        webkit_network_proxy_settings_new(kDeadProxy, nullptr);
    webkit_network_session_set_proxy_settings(
        session.get(), WEBKIT_NETWORK_PROXY_MODE_CUSTOM, proxy);
    webkit_network_proxy_settings_free(proxy);
  }
  return session;
}

}  // namespace

Engine::Engine(Places& places)
    : places_(places), context_(webkit_web_context_new()) {
  webkit_web_context_set_cache_model(context_.get(),
                                     WEBKIT_CACHE_MODEL_DOCUMENT_VIEWER);
  ServeLocalPages(context_.get(), places_);
}

WebKitNetworkSession* Engine::Session(PageKind kind) {
  auto& session = kind == PageKind::kLocal ? local_ : online_;
  if (!session) session = NewSession(kind);
  return session.get();
}

ObjectPtr<WebKitSettings> PageSettings(PageKind kind) {
  ObjectPtr<WebKitSettings> settings(webkit_settings_new());
  // Pages of text need no graphics processor: without it the engine starts
  // quicker and takes less memory.
  webkit_settings_set_hardware_acceleration_policy(
      settings.get(), WEBKIT_HARDWARE_ACCELERATION_POLICY_NEVER);
  webkit_settings_set_default_charset(settings.get(), "utf-8");
  webkit_settings_set_enable_webgl(settings.get(), FALSE);
  webkit_settings_set_enable_webaudio(settings.get(), FALSE);
  webkit_settings_set_enable_page_cache(settings.get(),
                                        kind == PageKind::kOnline);
  webkit_settings_set_enable_html5_database(settings.get(), FALSE);
  webkit_settings_set_enable_media_stream(settings.get(), FALSE);
  webkit_settings_set_javascript_can_open_windows_automatically(settings.get(),
                                                                FALSE);
  webkit_settings_set_enable_back_forward_navigation_gestures(settings.get(),
                                                              TRUE);
  return settings;
}

}  // namespace viewer
