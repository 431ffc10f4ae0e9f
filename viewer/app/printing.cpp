#include "viewer/app/printing.h"

#include <glib/gi18n.h>

#include <memory>
#include <utility>

#include "viewer/gobject_ptr.h"

namespace viewer {
namespace {

ObjectPtr<GFile> FileOf(GtkFileChooser* chooser) {
  return ObjectPtr<GFile>(gtk_file_chooser_get_file(chooser));
}

struct Choice {
  ObjectPtr<WebKitWebView> view;
  SaveDone done;
};

void OnFileChosen(GtkNativeDialog* dialog, int response, gpointer data) {
  const std::unique_ptr<Choice> choice(static_cast<Choice*>(data));
  if (response == GTK_RESPONSE_ACCEPT) {
    const auto file = FileOf(GTK_FILE_CHOOSER(dialog));
    SavePdf(choice->view.get(), Adopt(g_file_get_uri(file.get())),
            choice->done);
  }
  g_object_unref(dialog);
}

struct Saving {
  SaveDone done;
  bool failed = false;
};

void OnFailed(WebKitPrintOperation*, GError*, gpointer saving) {
  static_cast<Saving*>(saving)->failed = true;
}

// Also after a failure.
void OnFinished(WebKitPrintOperation* operation, gpointer data) {
  const std::unique_ptr<Saving> saving(static_cast<Saving*>(data));
  saving->done(!saving->failed);
  g_object_unref(operation);
}

std::string SuggestedName(WebKitWebView* view) {
  std::string name = Copy(webkit_web_view_get_title(view));
  for (char& c : name) {
    if (c == '/') c = '-';
  }
  return (name.empty() ? _("Help") : name) + ".pdf";
}

}  // namespace

void Print(WebKitWebView* view, GtkWindow* parent) {
  const ObjectPtr<WebKitPrintOperation> operation(
      webkit_print_operation_new(view));
  webkit_print_operation_run_dialog(operation.get(), parent);
}

void AskAndSavePdf(WebKitWebView* view, GtkWindow* parent, SaveDone done) {
  GtkFileChooserNative* dialog = gtk_file_chooser_native_new(
      _("Save as PDF"), parent, GTK_FILE_CHOOSER_ACTION_SAVE, nullptr, nullptr);
  gtk_file_chooser_set_current_name(GTK_FILE_CHOOSER(dialog),
                                    SuggestedName(view).c_str());
  auto* choice = new Choice{.view = Retain(view), .done = std::move(done)};
  g_signal_connect(dialog, "response", G_CALLBACK(OnFileChosen), choice);
  gtk_native_dialog_show(GTK_NATIVE_DIALOG(dialog));
}

void SavePdf(WebKitWebView* view, const std::string& file_uri, SaveDone done) {
  const ObjectPtr<GtkPrintSettings> settings(gtk_print_settings_new());
  // The toolkit finds its printer by the name in the person's language.
  gtk_print_settings_set_printer(settings.get(),
                                 g_dgettext("gtk40", "Print to File"));
  gtk_print_settings_set(settings.get(), GTK_PRINT_SETTINGS_OUTPUT_FILE_FORMAT,
                         "pdf");
  gtk_print_settings_set(settings.get(), GTK_PRINT_SETTINGS_OUTPUT_URI,
                         file_uri.c_str());
  WebKitPrintOperation* operation = webkit_print_operation_new(view);
  webkit_print_operation_set_print_settings(operation, settings.get());
  auto* saving = new Saving{.done = std::move(done)};
  g_signal_connect(operation, "failed", G_CALLBACK(OnFailed), saving);
  g_signal_connect(operation, "finished", G_CALLBACK(OnFinished), saving);
  webkit_print_operation_print(operation);
}

}  // namespace viewer
