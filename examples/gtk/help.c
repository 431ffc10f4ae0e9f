/* Help for a window, without ever blocking it. */
#include "help.h"

#include <glib-unix.h>
#include <unistd.h>
#include <velmohelp/embed.h>
#include <velmohelp/velmohelp.h>

/* The library is for one caller at a time. While a worker thread asks it for a
 * page, the window calls nothing: what the person wants is remembered. */
typedef struct {
  GtkWindow* window;
  GtkLabel* status;
  GSimpleAction* action;
  char* page;         /* of the focused widget; null when it has none */
  gboolean asking;    /* a worker uses the library */
  gboolean outdated;  /* the focus has moved since then */
  gboolean requested; /* F1 was pressed since then */
  guint watch;        /* of the request that runs; 0 when none does */
  int descriptor;     /* its result */
} Help;

static const char kPageId[] = "page-id";

GtkWidget* with_page_id(GtkWidget* widget, const char* id) {
  g_object_set_data(G_OBJECT(widget), kPageId, (gpointer)id);
  return widget;
}

static char* url_of(const char* page_id) {
  uint32_t kind = kTargetNone;
  char* url = NULL;
  if (velmohelp_find_display(page_id, &kind, &url) == 0) return url;
  velmohelp_free(url);
  return NULL;
}

/* An id without a page of its own leads to the home page. */
static gboolean has_page(const char* page_id, const char* home) {
  char* url = url_of(page_id);
  const gboolean found = url != NULL && g_strcmp0(url, home) != 0;
  velmohelp_free(url);
  return found;
}

/* On a worker thread, because both the initialisation and a find may wait for
 * the network. */
static void find_page(GTask* task, gpointer source, gpointer ids,
                      GCancellable* unused) {
  (void)source;
  (void)unused;
  char* found = NULL;
  if (velmohelp_initialise("Drawing", "en_US") == 0) {
    char* home = url_of("VX_HOME");
    for (char** id = ids; *id != NULL && found == NULL; ++id) {
      if (has_page(*id, home)) found = g_strdup(*id);
    }
    velmohelp_free(home);
  }
  g_task_return_pointer(task, found, g_free);
}

static void report(Help* help, uint32_t result) {
  char* text = g_strdup_printf("Help cannot be shown (%u)", result);
  gtk_label_set_text(help->status, result == 0 ? "" : text);
  g_free(text);
}

static gboolean on_result(gint descriptor, GIOCondition unused, gpointer data) {
  (void)unused;
  Help* help = data;
  help->watch = 0;
  report(help, velmohelp_finish(descriptor));
  return G_SOURCE_REMOVE;
}

/* With the token, the desktop lets the browser take the focus from us. */
static char* activation_token(Help* help) {
  GdkDisplay* display = gtk_widget_get_display(GTK_WIDGET(help->window));
  GdkAppLaunchContext* context = gdk_display_get_app_launch_context(display);
  GAppInfo* info = g_app_info_create_from_commandline(
      "help", "Help", G_APP_INFO_CREATE_SUPPORTS_STARTUP_NOTIFICATION, NULL);
  char* token = g_app_launch_context_get_startup_notify_id(
      G_APP_LAUNCH_CONTEXT(context), info, NULL);
  g_object_unref(info);
  g_object_unref(context);
  return token;
}

/* A tool may hang: the next request takes its place. */
static void cancel(Help* help) {
  if (help->watch == 0) return;
  g_source_remove(help->watch);
  close(help->descriptor);
  help->watch = 0;
}

static void show(Help* help) {
  cancel(help);
  char* token = activation_token(help);
  velmohelp_set_activation_token(token);
  help->descriptor = velmohelp_start_display(help->page);
  g_free(token);
  if (help->descriptor < 0) {
    report(help, kDisplayHelpAppLaunchFailure);
    return;
  }
  help->watch = g_unix_fd_add(help->descriptor, G_IO_IN, on_result, help);
}

static void look_up(Help* help);

static void on_found(GObject* source, GAsyncResult* result, gpointer data) {
  (void)source;
  Help* help = data;
  char* page = g_task_propagate_pointer(G_TASK(result), NULL);
  help->asking = FALSE;
  g_free(help->page);
  help->page = page;
  if (help->outdated) {
    look_up(help);
    return;
  }
  g_simple_action_set_enabled(help->action, page != NULL);
  if (help->requested && page != NULL) show(help);
  help->requested = FALSE;
}

/* Asks for the page of what has the focus now. */
static void look_up(Help* help) {
  help->outdated = help->asking;
  if (help->asking) return;
  help->asking = TRUE;
  GStrvBuilder* ids = g_strv_builder_new();
  for (GtkWidget* widget = gtk_window_get_focus(help->window); widget != NULL;
       widget = gtk_widget_get_parent(widget)) {
    const char* id = g_object_get_data(G_OBJECT(widget), kPageId);
    if (id != NULL) g_strv_builder_add(ids, id);
  }
  GTask* task = g_task_new(help->window, NULL, on_found, help);
  g_task_set_task_data(task, g_strv_builder_end(ids),
                       (GDestroyNotify)g_strfreev);
  g_strv_builder_unref(ids);
  g_task_run_in_thread(task, find_page);
  g_object_unref(task);
}

static void on_help(Help* help) {
  help->requested = help->asking;
  if (!help->asking && help->page != NULL) show(help);
}

static gboolean on_f1(GtkWidget* widget, GVariant* unused, gpointer help) {
  (void)widget;
  (void)unused;
  on_help(help);
  return TRUE;
}

static void free_help(gpointer data) {
  Help* help = data;
  cancel(help);
  g_object_unref(help->action);
  g_free(help->page);
  g_free(help);
}

void add_help(GtkApplicationWindow* window, GtkLabel* status) {
  Help* help = g_new0(Help, 1);
  help->window = GTK_WINDOW(window);
  help->status = status;
  help->action = g_simple_action_new("help", NULL);
  g_simple_action_set_enabled(help->action, FALSE);
  g_signal_connect_swapped(help->action, "activate", G_CALLBACK(on_help), help);
  g_action_map_add_action(G_ACTION_MAP(help->window), G_ACTION(help->action));
  GtkEventController* keys = gtk_shortcut_controller_new();
  gtk_shortcut_controller_add_shortcut(
      GTK_SHORTCUT_CONTROLLER(keys),
      gtk_shortcut_new(gtk_keyval_trigger_new(GDK_KEY_F1, 0),
                       gtk_callback_action_new(on_f1, help, NULL)));
  gtk_widget_add_controller(GTK_WIDGET(help->window), keys);
  g_signal_connect_swapped(help->window, "notify::focus-widget",
                           G_CALLBACK(look_up), help);
  g_object_set_data_full(G_OBJECT(window), "help", help, free_help);
}
