// Programs that do not start, and pages that they cannot show.
#include <velmohelp/velmohelp.h>

#include "resolve/page_id.h"
#include "tools/explain/cause_parts.h"
#include "tools/explain/file_facts.h"
#include "tools/printable.h"
#include "util/uri.h"

namespace velmohelp::tool {
namespace {

Cause BrowserCause(const Step& open) {
  const bool is_no_program = !open.reason.empty();
  if (is_no_program) {
    return {"browser-does-not-start",
            "the default browser does not start" + InBrackets(open.reason),
            "repair it, or choose another one"};
  }
  return {"no-browser", "no program opens https or http links",
          "install a browser, and make it the default: xdg-settings set "
          "default-web-browser NAME.desktop"};
}

std::optional<Cause> ViewerCause(const Run& run) {
  const Step* start = LastStep(run, Step::Kind::kQuestion, "StartProgram");
  if (start == nullptr || start->ok) return std::nullopt;
  return Cause{"viewer-does-not-start",
               "the viewer " + PrintableWhole(start->subject[0]) +
                   " does not start" + InBrackets(start->reason),
               "install the viewer again; the browser is used only when the "
               "viewer is missing"};
}

/// A page was found, or a URL asked for, and no program was asked to show it.
std::optional<Cause> NoUriCause(const Run& run) {
  const bool failed = (run.request.kind == Request::Kind::kDisplay &&
                       run.result.code == kDisplayBrowserLaunchFailure) ||
                      (run.request.kind == Request::Kind::kOpen &&
                       run.result.code == kOpenUrlBrowserLaunchFailure);
  if (!failed) return std::nullopt;
  return Cause{"not-a-uri",
               "the address of the page cannot be written as a URL of at most "
               "1023 bytes",
               "shorten its path, and use UTF-8 in it"};
}

Cause SnapCause(const Run& run, const Surroundings& around,
                const std::string& page, const std::string& why) {
  const std::string name = around.browser.name.empty()
                               ? "the default browser"
                               : PrintableWhole(around.browser.name);
  const std::string confinement = ConfinementOf(around.browser);
  return {"confined-browser",
          name + " is a " + confinement + " and cannot show " +
              PrintableWhole(page) + ": " + why +
              "; the person sees \"File not found\"",
          run.variables.is_online
              ? "put the content online, or use a browser of the distribution"
              : "use a browser of the distribution's packages, a help viewer, "
                "or online help"};
}

}  // namespace

std::optional<Cause> LaunchCause(const Run& run) {
  if (auto cause = ViewerCause(run)) return cause;
  const Step* open = LastStep(run, Step::Kind::kQuestion, "OpenInBrowser");
  if (open != nullptr && !open->ok) return BrowserCause(*open);
  return NoUriCause(run);
}

std::string LocalPageOf(const Run& run) {
  if (!run.start || !run.start->target.starts_with("file://")) return "";
  return Unescaped(PathOfUri(run.start->target));
}

std::optional<Cause> TargetCause(const Run& run, const Surroundings& around) {
  const std::string page = LocalPageOf(run);
  if (page.empty()) return std::nullopt;
  if (const auto reason = WhyNotRead(page); !reason.empty()) {
    return Cause{"page-unreadable",
                 "the page " + PrintableWhole(page) + " cannot be read" +
                     InBrackets(reason) + "; the client trusts help maps",
                 "install it, or correct the map: velmo-help check FOLDER"};
  }
  if (run.start->kind == Start::Kind::kViewer) return std::nullopt;
  if (!around.host_flatpak.empty()) {
    return Cause{"host-in-flatpak",
                 "the host is the Flatpak " +
                     PrintableWhole(around.host_flatpak) +
                     ": the desktop's portal gets this page alone, without "
                     "its anchor, pictures and styles",
                 "put the content online"};
  }
  const std::string why = WhyUnreadable(around.browser, page, around.home);
  if (why.empty()) return std::nullopt;
  return SnapCause(run, around, page, why);
}

}  // namespace velmohelp::tool
