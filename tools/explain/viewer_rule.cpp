// Viewer or browser, and by which rule.
#include "config/key_scanner.h"
#include "tools/explain/cause_parts.h"
#include "tools/printable.h"

namespace velmohelp::tool {
namespace {

constexpr char kNothingToDo[] = "nothing: this is how it is meant to be";

ViewerRule Browser(std::string name, std::string why, std::string advice) {
  return {.usable = false,
          .cause = {std::move(name), std::move(why), std::move(advice)}};
}

/// The last run of the tool with this first argument; null when it was not run.
const Step* ToolRun(const Run& run, std::string_view verb,
                    std::string_view argument) {
  for (std::size_t i = run.trail.size(); i > run.first; --i) {
    const Step& step = run.trail[i - 1];
    if (step.name == verb && step.subject.size() > 1 &&
        step.subject[1] == argument) {
      return &step;
    }
  }
  return nullptr;
}

std::string ViewerName(const Run& run) { return Quoted(run.variables.app_id); }

std::optional<ViewerRule> FrameworkRule(const Run& run) {
  const Step* bundle = LastStep(run, Step::Kind::kQuestion, "BundleDirectory");
  if (bundle == nullptr) return std::nullopt;
  if (!bundle->ok) {
    return Browser("no-framework",
                   "the framework " + bundle->subject[0] +
                       " is not there, so no viewer is known",
                   "install it to have help in the viewer");
  }
  const Step* tool = LastQuestion(
      run, "FindFile", bundle->answer + "//Versions/A/Resources/QTV");
  if (tool == nullptr || tool->ok) return std::nullopt;
  return Browser("no-tool",
                 "the framework " + PrintableWhole(bundle->answer) +
                     " has no QTV tool" + InBrackets(tool->reason),
                 "install the framework again");
}

std::optional<ViewerRule> ToolRule(const Run& run) {
  const Step* installed = ToolRun(run, "RunToEnd", "-isAppInstalled");
  if (installed == nullptr) return std::nullopt;
  if (!installed->ok) {
    return Browser("viewer-not-installed",
                   "the QTV tool says that the viewer " + ViewerName(run) +
                       " is not installed: " + installed->answer +
                       InBrackets(installed->reason),
                   "install the viewer to have help there");
  }
  if (!run.variables.help_app_path.empty()) return std::nullopt;
  const Step* location = ToolRun(run, "FirstOutput", "-appLocation");
  return Browser("viewer-not-found",
                 "the QTV tool says that the viewer is at " +
                     Quoted(location == nullptr ? "" : location->answer) +
                     ", and no program is there",
                 "install the viewer again");
}

std::optional<ViewerRule> InstalledRule(const Run& run) {
  const std::string& viewer = run.variables.help_app_path;
  const Step* file = LastQuestion(run, "FindFile", viewer);
  if (file != nullptr && !file->ok) {
    return Browser("viewer-gone",
                   "the viewer " + PrintableWhole(viewer) + " is not there" +
                       InBrackets(file->reason),
                   "install the viewer again");
  }
  const Step* runtime = ToolRun(run, "RunToEnd", "-isRuntimeInstalled");
  if (runtime == nullptr || runtime->ok) return std::nullopt;
  return Browser("no-runtime",
                 "the viewer's runtime is not installed: the QTV tool says " +
                     runtime->answer + InBrackets(runtime->reason),
                 "install the runtime to have help in the viewer");
}

std::optional<ViewerRule> AccessibleRule(const Run& run) {
  const Step* mode = LastStep(run, Step::Kind::kValue, "accessibleMode");
  if (mode == nullptr || ToUpper(mode->answer) != "TRUE") return std::nullopt;
  return Browser("accessible-mode",
                 "accessibleMode is on in " + PrintableWhole(mode->subject[0]) +
                     ", so help is read in the browser",
                 "nothing, when the person wants it; else switch it off in "
                 "the viewer");
}

}  // namespace

ViewerRule ViewerRuleOf(const Run& run) {
  if (run.variables.app_id_is_null) {
    return Browser("viewer-not-named",
                   "appId is NULL in the configuration: no viewer is named, so "
                   "help is shown in the browser",
                   kNothingToDo);
  }
  for (auto* rule :
       {&AccessibleRule, &FrameworkRule, &ToolRule, &InstalledRule}) {
    if (const auto found = rule(run)) return *found;
  }
  return {.usable = true,
          .cause = {"viewer",
                    "the viewer " + ViewerName(run) +
                        " and its runtime are installed, and nothing speaks "
                        "against it",
                    kNothingToDo}};
}

}  // namespace velmohelp::tool
