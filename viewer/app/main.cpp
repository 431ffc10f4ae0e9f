// velmohelp-viewer-window VERB PRODUCT LOCALE REQUEST: shows help.
#include <glib/gi18n.h>
#include <unistd.h>

#include <clocale>
#include <filesystem>
#include <string>
#include <system_error>

#include "viewer/app/application.h"
#include "viewer/identity.h"

namespace {

// Pages are shown in the engine's sandbox or not at all: these would switch it
// off, or open the engine to whoever set them.
void ProtectEngine() {
  for (const char* name :
       {"WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS", "WEBKIT_FORCE_SANDBOX",
        "WEBKIT_INSPECTOR_SERVER", "WEBKIT_INSPECTOR_HTTP_SERVER"}) {
    g_unsetenv(name);
  }
}

// Translations lie below the prefix, wherever that is: the program is
// <prefix>/lib/<triplet>/velmohelp-viewer/HelpViewer.app/libexec/<name>.
std::string TranslationFolder() {
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  for (auto folder = self.parent_path(); folder.has_relative_path();
       folder = folder.parent_path()) {
    const auto locale = folder / "share" / "locale";
    if (std::filesystem::is_directory(locale, error)) return locale.string();
  }
  return "/usr/share/locale";
}

// A window of text is drawn quickest without a graphics processor: starting one
// takes longer than drawing the window, and its driver takes more memory than
// the rest of the viewer. A person's own choice is kept.
void DrawInSoftware() { g_setenv("GSK_RENDERER", "cairo", FALSE); }

void Translate() {
  setlocale(LC_ALL, "");
  bindtextdomain("velmohelp-viewer", TranslationFolder().c_str());
  bind_textdomain_codeset("velmohelp-viewer", "UTF-8");
  textdomain("velmohelp-viewer");
}

}  // namespace

int main(int argc, char** argv) {
  ProtectEngine();
  DrawInSoftware();
  Translate();
  g_set_prgname(VIEWER_ID);
  viewer::Application application;
  return application.Run(argc, argv);
}
