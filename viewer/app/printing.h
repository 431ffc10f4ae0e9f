// A page on paper or as a PDF file.
#ifndef VIEWER_APP_PRINTING_H_
#define VIEWER_APP_PRINTING_H_

#include <gtk/gtk.h>
#include <webkit/webkit.h>

#include <functional>
#include <string>

namespace viewer {

void Print(WebKitWebView* view, GtkWindow* parent);

/// Gets whether the file was written.
using SaveDone = std::function<void(bool)>;

/// Asks for a file name first; done is not called when the person cancels.
void AskAndSavePdf(WebKitWebView* view, GtkWindow* parent, SaveDone done);

void SavePdf(WebKitWebView* view, const std::string& file_uri, SaveDone done);

}  // namespace viewer

#endif  // VIEWER_APP_PRINTING_H_
