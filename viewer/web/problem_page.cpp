#include "viewer/web/problem_page.h"

#include <glib.h>
#include <glib/gi18n.h>

#include "viewer/gobject_ptr.h"

namespace viewer {
namespace {

constexpr char kStyle[] =
    ":root { color-scheme: light dark; font: 12pt sans-serif; }"
    "main { max-width: 34em; margin: 12vh auto; padding: 0 2em; }"
    "p.address { opacity: .7; font-size: 90%; overflow-wrap: anywhere; }";

std::string Escaped(const std::string& text) {
  return Adopt(
      g_markup_escape_text(text.data(), static_cast<gssize>(text.size())));
}

}  // namespace

std::string ProblemTitle() { return _("This page cannot be shown"); }

std::string ProblemPage(const std::string& sentence, const std::string& uri) {
  const std::string title = Escaped(ProblemTitle());
  return "<!DOCTYPE html><meta charset=utf-8><title>" + title +
         "</title><style>" + kStyle + "</style><main role=alert><h1>" + title +
         "</h1><p>" + Escaped(sentence) + "</p><p class=address>" +
         Escaped(uri) + "</p></main>";
}

}  // namespace viewer
