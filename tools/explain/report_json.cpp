// An explanation as JSON. docs/tool.md describes the members.
#include "tools/explain/cause_parts.h"
#include "tools/explain/report.h"

namespace velmohelp::tool {
namespace {

using Json = nlohmann::ordered_json;

const char* NameOf(Step::Kind kind) {
  switch (kind) {
    case Step::Kind::kQuestion:
      return "question";
    case Step::Kind::kKeyFile:
      return "file";
    case Step::Kind::kValue:
      return "value";
    case Step::Kind::kLookUp:
      return "look-up";
    case Step::Kind::kHelpMap:
      return "help-map";
    case Step::Kind::kContentFolder:
      break;
  }
  return "content-folder";
}

Json JsonOf(const MapFacts& map) {
  return {{"entries", map.entries},
          {"has_home", map.has_home},
          {"has_key", map.has_key},
          {"page", map.page},
          {"near", map.near}};
}

Json JsonOf(const Step& step) {
  Json json = {{"step", NameOf(step.kind)}, {"name", step.name},
               {"subject", step.subject},   {"ok", step.ok},
               {"answer", step.answer},     {"reason", step.reason}};
  if (step.kind == Step::Kind::kValue) {
    json["line"] = step.line;
    json["column"] = step.column;
  }
  if (step.kind == Step::Kind::kHelpMap) json["map"] = JsonOf(step.map);
  return json;
}

Json StartJson(const Run& run) {
  if (!run.start) return nullptr;
  const auto& words = run.start->words;
  const bool is_viewer = run.start->kind == Start::Kind::kViewer;
  return {{"kind", is_viewer ? "viewer" : "browser"},
          {"command", words},
          {"target", run.start->target}};
}

Json ResultJson(const Run& run) {
  if (run.endless) return nullptr;
  return {{"code", run.result.code},
          {"name", run.result.name},
          {"table", run.result.table}};
}

}  // namespace

Json JsonOf(const Trail& trail) {
  Json steps = Json::array();
  for (const Step& step : trail) steps.push_back(JsonOf(step));
  return steps;
}

Json JsonOf(const Explanation& explanation) {
  const Run& run = explanation.run;
  const Surroundings& around = explanation.around;
  return {{"schema", 1},
          {"request",
           {{"kind", NameOf(run.request.kind)},
            {"product", run.request.product},
            {"locale", run.request.locale},
            {"what", run.request.what}}},
          {"host", around.host},
          {"what_if", explanation.what_if},
          {"result", ResultJson(run)},
          {"starts", StartJson(run)},
          {"cause",
           {{"name", explanation.cause.name},
            {"why", explanation.cause.why},
            {"advice", explanation.cause.advice}}},
          {"online", run.variables.is_online},
          {"browser",
           {{"entry", around.browser.file},
            {"name", around.browser.name},
            {"confinement", ConfinementOf(around.browser)}}},
          {"initialisation_steps", run.first},
          {"trail", JsonOf(run.trail)}};
}

}  // namespace velmohelp::tool
