#include "tools/explain/cause.h"

#include <algorithm>

#include "tools/explain/cause_parts.h"
#include "tools/printable.h"

namespace velmohelp::tool {
namespace {

/// A downloaded configuration was read and refused: the installed one counts.
std::optional<Cause> StaleDownloadCause(const Run& run) {
  const Step* refused = nullptr;
  for (std::size_t i = run.first; i < run.trail.size(); ++i) {
    const Step& step = run.trail[i];
    if (step.kind != Step::Kind::kKeyFile) continue;
    const bool is_download =
        step.subject[0].find("/Local Store/") != std::string::npos &&
        step.subject[0].ends_with(".helpcfg");
    if (is_download) {
      refused = &step;
    } else if (refused != nullptr && step.subject[0].ends_with(".helpcfg")) {
      return Cause{
          "stale-download",
          "the downloaded configuration " +
              PrintableWhole(refused->subject[0]) +
              " is refused, and the installed one counts",
          "check it with: velmo-help check FILE; or remove it, so that "
          "the viewer downloads it again"};
    }
  }
  return std::nullopt;
}

bool IsStart(const Step& step) {
  return step.kind == Step::Kind::kQuestion &&
         (step.name == "StartProgram" || step.name == "OpenInBrowser");
}

}  // namespace

const Step* LastStep(const Run& run, Step::Kind kind, std::string_view name) {
  for (std::size_t i = run.trail.size(); i > run.first; --i) {
    const Step& step = run.trail[i - 1];
    if (step.kind == kind && (name.empty() || step.name == name)) return &step;
  }
  return nullptr;
}

const Step* LastQuestion(const Run& run, std::string_view verb,
                         std::string_view subject) {
  for (std::size_t i = run.trail.size(); i > run.first; --i) {
    const Step& step = run.trail[i - 1];
    if (step.kind == Step::Kind::kQuestion && step.name == verb &&
        !step.subject.empty() && step.subject.front() == subject) {
      return &step;
    }
  }
  return nullptr;
}

std::string InBrackets(const std::string& reason) {
  return reason.empty() ? "" : " (" + PrintableWhole(reason) + ")";
}

std::vector<FolderVisit> FirstVisits(const Run& run) {
  std::vector<FolderVisit> visits;
  FolderVisit visit;
  int searches = 0;
  for (std::size_t i = run.first; i < run.trail.size(); ++i) {
    const Step& step = run.trail[i];
    if (step.kind == Step::Kind::kLookUp && ++searches == 2) break;
    if (IsStart(step)) break;
    if (step.kind == Step::Kind::kHelpMap) {
      visit.map = &step;
      visit.question = nullptr;
    } else if (step.name == "FindFile" || step.name == "FetchText") {
      visit.question = &step;
    } else if (step.kind == Step::Kind::kContentFolder) {
      visit.folder = &step;
      visits.push_back(visit);
      visit = {};
    }
  }
  return visits;
}

Cause CauseOf(const Run& run, const Surroundings& around) {
  if (auto cause = ConfigurationCause(run, around)) return *cause;
  if (auto cause = LaunchCause(run)) return *cause;
  if (auto cause = PageCause(run)) return *cause;
  if (auto cause = TargetCause(run, around)) return *cause;
  if (auto cause = StaleDownloadCause(run)) return *cause;
  return ViewerRuleOf(run).cause;
}

}  // namespace velmohelp::tool
