// A page on paper or as a PDF file.
#ifndef VIEWER_APP_PRINTING_H_
#define VIEWER_APP_PRINTING_H_

#include <gtk/gtk.h>
#include <webkit/webkit.h>

#include <string>

namespace viewer {

void Print(WebKitWebView* view, GtkWindow* parent);

/// Asks for a file name first.
void AskAndSavePdf(WebKitWebView* view, GtkWindow* parent);

void SavePdf(WebKitWebView* view, const std::string& file_uri);

}  // namespace viewer

#endif  // VIEWER_APP_PRINTING_H_
