#include "viewer/web/page_policy.h"

#include <glib/gi18n.h>

#include "viewer/web/address.h"
#include "viewer/web/navigation.h"
#include "viewer/web/page_view.h"

namespace viewer {

class PagePolicy {
 public:
  static gboolean Decide(WebKitWebView*, WebKitPolicyDecision* decision,
                         WebKitPolicyDecisionType type, PageView* page) {
    if (type == WEBKIT_POLICY_DECISION_TYPE_RESPONSE) {
      return DecideResponse(*page, WEBKIT_RESPONSE_POLICY_DECISION(decision));
    }
    auto* action = webkit_navigation_policy_decision_get_navigation_action(
        WEBKIT_NAVIGATION_POLICY_DECISION(decision));
    const bool is_new_window =
        type == WEBKIT_POLICY_DECISION_TYPE_NEW_WINDOW_ACTION;
    const bool follows = Navigate(*page, action, is_new_window);
    follows ? webkit_policy_decision_use(decision)
            : webkit_policy_decision_ignore(decision);
    return TRUE;
  }

 private:
  static Navigation Describe(WebKitNavigationAction* action) {
    auto* request = webkit_navigation_action_get_request(action);
    return {.uri = Copy(webkit_uri_request_get_uri(request)),
            .is_link_click = webkit_navigation_action_is_user_gesture(action) &&
                             webkit_navigation_action_get_navigation_type(
                                 action) == WEBKIT_NAVIGATION_TYPE_LINK_CLICKED,
            .is_redirect = webkit_navigation_action_is_redirect(action) != 0};
  }

  // A page that belongs to no help is shown without its scripts, whatever kind
  // of document it is.
  static void Admit(PageView& page, const Address& address) {
    auto& places = page.engine_.places();
    places.Admit(address);
    const auto local = places.Find(address);
    webkit_settings_set_enable_javascript_markup(
        webkit_web_view_get_settings(page.view_.get()),
        local && local->folder.trusted);
  }

  // True when the view goes on to the page.
  static bool Navigate(PageView& page, WebKitNavigationAction* action,
                       bool is_new_window) {
    const auto navigation = Describe(action);
    const auto verdict = Judge(page.kind_, page.site_, navigation);
    if (verdict == Verdict::kBrowser) {
      page.listener_.on_outside_link(navigation.uri);
    }
    if (verdict != Verdict::kFollow) return false;
    if (const auto address = ParseAddress(navigation.uri)) {
      Admit(page, *address);
    }
    if (!is_new_window) return true;
    // A link that wants a window of its own gets this one.
    if (navigation.is_link_click) page.Load(navigation.uri);
    return false;
  }

  // A file that the engine does not show would become a download.
  static gboolean DecideResponse(PageView& page,
                                 WebKitResponsePolicyDecision* decision) {
    if (webkit_response_policy_decision_is_mime_type_supported(decision)) {
      return FALSE;
    }
    auto* request = webkit_response_policy_decision_get_request(decision);
    const std::string uri = Copy(webkit_uri_request_get_uri(request));
    webkit_policy_decision_ignore(WEBKIT_POLICY_DECISION(decision));
    if (webkit_response_policy_decision_is_main_frame_main_resource(decision)) {
      page.ShowProblem(uri, _("The viewer does not show files of this kind."));
    }
    return TRUE;
  }
};

namespace {

// Handled: nothing happens.
gboolean Refuse() { return TRUE; }

gboolean RefusePermission(WebKitWebView*, WebKitPermissionRequest* request) {
  webkit_permission_request_deny(request);
  return TRUE;
}

gboolean RefuseFileChooser(WebKitWebView*, WebKitFileChooserRequest* request) {
  webkit_file_chooser_request_cancel(request);
  return TRUE;
}

GtkWidget* RefuseWindow() { return nullptr; }

bool IsUseful(WebKitContextMenuAction action) {
  switch (action) {
    case WEBKIT_CONTEXT_MENU_ACTION_GO_BACK:
    case WEBKIT_CONTEXT_MENU_ACTION_GO_FORWARD:
    case WEBKIT_CONTEXT_MENU_ACTION_RELOAD:
    case WEBKIT_CONTEXT_MENU_ACTION_COPY:
    case WEBKIT_CONTEXT_MENU_ACTION_SELECT_ALL:
    case WEBKIT_CONTEXT_MENU_ACTION_COPY_LINK_TO_CLIPBOARD:
    case WEBKIT_CONTEXT_MENU_ACTION_COPY_IMAGE_TO_CLIPBOARD:
      return true;
    default:
      return false;
  }
}

// Without what opens windows, downloads or the inspector.
gboolean TrimMenu(WebKitWebView*, WebKitContextMenu* menu) {
  GList* items = g_list_copy(webkit_context_menu_get_items(menu));
  for (GList* item = items; item; item = item->next) {
    auto* entry = WEBKIT_CONTEXT_MENU_ITEM(item->data);
    if (!IsUseful(webkit_context_menu_item_get_stock_action(entry))) {
      webkit_context_menu_remove(menu, entry);
    }
  }
  g_list_free(items);
  return webkit_context_menu_get_n_items(menu) == 0;
}

}  // namespace

void ConnectPolicy(PageView& page) {
  WebKitWebView* const view = page.web();
  g_signal_connect(view, "decide-policy", G_CALLBACK(PagePolicy::Decide),
                   &page);
  g_signal_connect(view, "create", G_CALLBACK(RefuseWindow), nullptr);
  g_signal_connect(view, "permission-request", G_CALLBACK(RefusePermission),
                   nullptr);
  g_signal_connect(view, "run-file-chooser", G_CALLBACK(RefuseFileChooser),
                   nullptr);
  g_signal_connect(view, "context-menu", G_CALLBACK(TrimMenu), nullptr);
  for (const char* name : {"script-dialog", "show-notification", "print",
                           "enter-fullscreen", "run-color-chooser"}) {
    g_signal_connect(view, name, G_CALLBACK(Refuse), nullptr);
  }
}

}  // namespace viewer
