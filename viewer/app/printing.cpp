#include "viewer/app/printing.h"

#include <glib/gi18n.h>

#include "viewer/gobject_ptr.h"

namespace viewer {
namespace {

ObjectPtr<GFile> FileOf(GtkFileChooser* chooser) {
  return ObjectPtr<GFile>(gtk_file_chooser_get_file(chooser));
}

void OnFileChosen(GtkNativeDialog* dialog, int response, gpointer view) {
  if (response == GTK_RESPONSE_ACCEPT) {
    const auto file = FileOf(GTK_FILE_CHOOSER(dialog));
    SavePdf(WEBKIT_WEB_VIEW(view), Adopt(g_file_get_uri(file.get())));
  }
  g_object_unref(view);
  g_object_unref(dialog);
}

std::string SuggestedName(WebKitWebView* view) {
  std::string name = Copy(webkit_web_view_get_title(view));
  for (char& c : name)
    if (c == '/') c = '-';
  return (name.empty() ? _("Help") : name) + ".pdf";
}

}  // namespace

void Print(WebKitWebView* view, GtkWindow* parent) {
  const ObjectPtr<WebKitPrintOperation> operation(
      webkit_print_operation_new(view));
  webkit_print_operation_run_dialog(operation.get(), parent);
}

void AskAndSavePdf(WebKitWebView* view, GtkWindow* parent) {
  GtkFileChooserNative* dialog = gtk_file_chooser_native_new(
      _("Save as PDF"), parent, GTK_FILE_CHOOSER_ACTION_SAVE, nullptr, nullptr);
  gtk_file_chooser_set_current_name(GTK_FILE_CHOOSER(dialog),
                                    SuggestedName(view).c_str());
  g_signal_connect(dialog, "response", G_CALLBACK(OnFileChosen),
                   g_object_ref(view));
  gtk_native_dialog_show(GTK_NATIVE_DIALOG(dialog));
}

void SavePdf(WebKitWebView* view, const std::string& file_uri) {
  const ObjectPtr<GtkPrintSettings> settings(gtk_print_settings_new());
  gtk_print_settings_set_printer(settings.get(), "Print to File");
  gtk_print_settings_set(settings.get(), GTK_PRINT_SETTINGS_OUTPUT_FILE_FORMAT,
                         "pdf");
  gtk_print_settings_set(settings.get(), GTK_PRINT_SETTINGS_OUTPUT_URI,
                         file_uri.c_str());
  WebKitPrintOperation* operation = webkit_print_operation_new(view);
  webkit_print_operation_set_print_settings(operation, settings.get());
  g_signal_connect(operation, "finished", G_CALLBACK(g_object_unref), nullptr);
  webkit_print_operation_print(operation);
}

}  // namespace viewer
