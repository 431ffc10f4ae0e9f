#include "viewer/web/page_view.h"

#include <glib/gi18n.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "util/str_cat.h"
#include "viewer/web/local_scheme.h"
#include "viewer/web/page_policy.h"
#include "viewer/web/page_script.h"
#include "viewer/web/problem_page.h"

namespace viewer {
namespace {

// A page that ends its process again and again is not loaded a fourth time.
constexpr std::size_t kMostRestarts = 3;
constexpr std::int64_t kRestartWindow = std::int64_t{60} * G_USEC_PER_SEC;

// For pages that come with no policy of their own.
constexpr char kLocalPolicy[] =
    "default-src velmohelp: data: blob: 'unsafe-inline' 'unsafe-eval';"
    " object-src 'none'";

void AddScript(WebKitUserContentManager* manager) {
  WebKitUserScript* script = webkit_user_script_new_for_world(
      kPageScript, WEBKIT_USER_CONTENT_INJECT_TOP_FRAME,
      WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_END, kScriptWorld, nullptr,
      nullptr);
  webkit_user_content_manager_add_script(manager, script);
  webkit_user_script_unref(script);
  WebKitUserStyleSheet* style = webkit_user_style_sheet_new(
      kPageStyle, WEBKIT_USER_CONTENT_INJECT_TOP_FRAME,
      WEBKIT_USER_STYLE_LEVEL_AUTHOR, nullptr, nullptr);
  webkit_user_content_manager_add_style_sheet(manager, style);
  webkit_user_style_sheet_unref(style);
}

WebKitWebView* NewView(Engine& engine, PageKind kind) {
  const ObjectPtr<WebKitUserContentManager> manager(
      webkit_user_content_manager_new());
  AddScript(manager.get());
  webkit_user_content_manager_register_script_message_handler(
      manager.get(), kScriptHandler, kScriptWorld);
  const auto settings = PageSettings(kind);
  auto* view = WEBKIT_WEB_VIEW(g_object_new(
      WEBKIT_TYPE_WEB_VIEW, "web-context", engine.context(), "network-session",
      engine.Session(kind), "user-content-manager", manager.get(), "settings",
      settings.get(), "default-content-security-policy",
      kind == PageKind::kLocal ? kLocalPolicy : nullptr, nullptr));
  gtk_widget_set_hexpand(GTK_WIDGET(view), TRUE);
  gtk_widget_set_vexpand(GTK_WIDGET(view), TRUE);
  return WEBKIT_WEB_VIEW(g_object_ref_sink(view));
}

std::string TextOf(JSCValue* object, const char* name) {
  const ObjectPtr<JSCValue> value(jsc_value_object_get_property(object, name));
  return jsc_value_is_string(value.get())
             ? Adopt(jsc_value_to_string(value.get()))
             : std::string();
}

double NumberOf(JSCValue* object, const char* name) {
  const ObjectPtr<JSCValue> value(jsc_value_object_get_property(object, name));
  return jsc_value_is_number(value.get()) ? jsc_value_to_double(value.get())
                                          : 0;
}

bool TruthOf(JSCValue* object, const char* name) {
  const ObjectPtr<JSCValue> value(jsc_value_object_get_property(object, name));
  return jsc_value_to_boolean(value.get());
}

// Navigation that the policy has refused, or that a newer one has replaced.
bool IsCancelled(const GError* error) {
  return g_error_matches(
             error, WEBKIT_POLICY_ERROR,
             WEBKIT_POLICY_ERROR_FRAME_LOAD_INTERRUPTED_BY_POLICY_CHANGE) ||
         g_error_matches(error, WEBKIT_NETWORK_ERROR,
                         WEBKIT_NETWORK_ERROR_CANCELLED);
}

std::string WithoutFragment(const std::string& uri) {
  return uri.substr(0, uri.find('#'));
}

using ScriptDone = std::function<void(JSCValue*)>;

void FinishScript(GObject* view, GAsyncResult* result, gpointer data) {
  const std::unique_ptr<ScriptDone> done(static_cast<ScriptDone*>(data));
  const ObjectPtr<JSCValue> value(webkit_web_view_evaluate_javascript_finish(
      WEBKIT_WEB_VIEW(view), result, nullptr));
  (*done)(value.get());
}

// done gets null when the script fails.
void Evaluate(WebKitWebView* view, const std::string& script, ScriptDone done) {
  webkit_web_view_evaluate_javascript(
      view, script.data(), static_cast<gssize>(script.size()), kScriptWorld,
      nullptr, nullptr, FinishScript, new ScriptDone(std::move(done)));
}

// A word as a literal of the script; JSON's escapes are enough for letters and
// digits, which is all that words have.
std::string Literal(const std::string& word) {
  const std::string valid =
      Adopt(g_utf8_make_valid(word.data(), static_cast<gssize>(word.size())));
  return velmohelp::StrCat({"'", valid, "'"});
}

}  // namespace

PageView::PageView(Engine& engine, PageKind kind, Listener listener)
    : engine_(engine),
      kind_(kind),
      listener_(std::move(listener)),
      view_(NewView(engine, kind)) {
  Connect();
  ConnectPolicy(*this);
}

PageView::~PageView() {
  g_signal_handlers_disconnect_by_data(view_.get(), this);
  g_signal_handlers_disconnect_by_data(
      webkit_web_view_get_user_content_manager(view_.get()), this);
}

void PageView::Connect() {
  const auto changed = +[](GObject*, GParamSpec*, gpointer self) {
    static_cast<PageView*>(self)->listener_.on_change();
  };
  for (const char* name : {"notify::uri", "notify::title"}) {
    g_signal_connect(view_.get(), name, G_CALLBACK(changed), this);
  }
  g_signal_connect(
      view_.get(), "load-changed",
      G_CALLBACK(+[](WebKitWebView*, WebKitLoadEvent event, PageView* self) {
        self->OnLoadChanged(event);
      }),
      this);
  g_signal_connect(
      view_.get(), "load-failed",
      G_CALLBACK(+[](WebKitWebView*, WebKitLoadEvent, const char* uri,
                     GError* error, PageView* self) -> gboolean {
        return self->OnLoadFailed(uri, error);
      }),
      this);
  g_signal_connect(
      view_.get(), "web-process-terminated",
      G_CALLBACK(+[](WebKitWebView*, WebKitWebProcessTerminationReason,
                     PageView* self) { self->OnTerminated(); }),
      this);
  g_signal_connect(webkit_web_view_get_user_content_manager(view_.get()),
                   "script-message-received::viewer",
                   G_CALLBACK(+[](WebKitUserContentManager*, JSCValue* value,
                                  PageView* self) { self->OnReport(value); }),
                   this);
}

void PageView::OnLoadChanged(WebKitLoadEvent event) {
  if (event == WEBKIT_LOAD_STARTED) is_replacing_ = true;
  if (event == WEBKIT_LOAD_COMMITTED) is_replacing_ = false;
  if (event == WEBKIT_LOAD_FINISHED) listener_.on_loaded();
  listener_.on_change();
}

void PageView::OnReport(JSCValue* value) {
  if (is_replacing_ || !jsc_value_is_object(value)) return;
  const std::string event = TextOf(value, "event");
  if (event == "settled" && gtk_get_minor_version() < 14) {
    Describe(TextOf(value, "text"));
  }
  listener_.on_report({.event = event,
                       .anchor = TextOf(value, "anchor"),
                       .found = TruthOf(value, "found"),
                       .top = NumberOf(value, "top"),
                       .height = NumberOf(value, "height")});
}

// Before 4.14 the toolkit does not lead a screen reader into the engine's own
// objects: it reads the page as the description of the view.
void PageView::Describe(const std::string& text) {
  const std::string title = Title();
  gtk_accessible_update_property(
      GTK_ACCESSIBLE(view_.get()), GTK_ACCESSIBLE_PROPERTY_LABEL, title.c_str(),
      GTK_ACCESSIBLE_PROPERTY_DESCRIPTION, text.c_str(), -1);
}

void PageView::Load(const std::string& uri) {
  // Another anchor of the same document replaces nothing.
  is_replacing_ = WithoutFragment(uri) == uri ||
                  WithoutFragment(uri) != WithoutFragment(Uri());
  requested_ = uri;
  site_ = SiteOf(uri);
  webkit_web_view_load_uri(view_.get(), uri.c_str());
}

void PageView::ShowProblem(const std::string& uri,
                           const std::string& sentence) {
  problem_ = sentence;
  problem_uri_ = uri;
  is_replacing_ = true;
  webkit_web_view_load_alternate_html(
      view_.get(), ProblemPage(sentence, uri).c_str(), uri.c_str(), nullptr);
  listener_.on_change();
}

// The engine's events do not tell the plain page from the one that it
// replaces, which has the same address.
std::string PageView::Problem() const {
  const bool is_shown = Uri() == problem_uri_ && Title() == ProblemTitle();
  return is_shown ? problem_ : std::string();
}

bool PageView::OnLoadFailed(const std::string& uri, const GError* error) {
  if (!IsCancelled(error)) ShowProblem(uri, error->message);
  return true;
}

bool PageView::MayRestart() {
  const std::int64_t now = g_get_monotonic_time();
  std::erase_if(restarts_, [now](std::int64_t then) {
    return now - then > kRestartWindow;
  });
  restarts_.push_back(now);
  return restarts_.size() <= kMostRestarts;
}

void PageView::OnTerminated() {
  const std::string uri = Uri().empty() ? requested_ : Uri();
  if (MayRestart()) {
    webkit_web_view_load_uri(view_.get(), uri.c_str());
  } else {
    ShowProblem(uri, _("The page makes the web engine fail each time it is "
                       "loaded."));
  }
}

std::string PageView::Uri() const {
  return Copy(webkit_web_view_get_uri(view_.get()));
}

std::string PageView::Title() const {
  return Copy(webkit_web_view_get_title(view_.get()));
}

void PageView::Highlight(const std::vector<std::string>& words,
                         std::function<void(int)> done) {
  std::string list;
  for (const auto& word : words) list += Literal(word) + ",";
  Evaluate(view_.get(), "velmoHighlight([" + list + "])",
           [done = std::move(done)](JSCValue* value) {
             done(value ? jsc_value_to_int32(value) : 0);
           });
}

void PageView::ReadContents(std::function<void(const std::string&)> done) {
  Evaluate(view_.get(), "velmoContents()",
           [done = std::move(done)](JSCValue* value) {
             done(value ? Adopt(jsc_value_to_string(value)) : std::string());
           });
}

}  // namespace viewer
