#include "tools/check/report.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

#include "tools/check/rules.h"
#include "tools/json.h"
#include "tools/printable.h"
#include "util/ascii.h"
#include "util/percent_encoding.h"

namespace velmohelp::tool {
namespace {

using Json = nlohmann::ordered_json;

constexpr char kSarifSchema[] = "https://json.schemastore.org/sarif-2.1.0.json";

std::string LevelOf(const Rule& rule) {
  return rule.severity == Severity::kError ? "error" : "warning";
}

std::size_t Count(const Findings& findings, Severity severity) {
  return static_cast<std::size_t>(
      std::ranges::count_if(findings, [&](const Finding& finding) {
        return finding.rule->severity == severity;
      }));
}

std::string Counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// A path as a URI reference.
std::string UriOfPath(const std::string& path) {
  std::string uri;
  for (const char c : path) {
    const bool stays = IsAsciiAlnum(c) || std::string_view("-._~/").find(c) !=
                                              std::string_view::npos;
    uri += stays ? std::string(1, c) : EscapeByte(c);
  }
  return path.starts_with('/') ? "file://" + uri : uri;
}

Json SarifRules() {
  Json rules = Json::array();
  for (const Rule* rule : rules::kAll) {
    rules.push_back({{"id", rule->name},
                     {"shortDescription", {{"text", rule->summary}}},
                     {"defaultConfiguration", {{"level", LevelOf(*rule)}}}});
  }
  return rules;
}

Json SarifResult(const Finding& finding) {
  const auto* rule = std::ranges::find(rules::kAll, finding.rule);
  const Json location = {
      {"physicalLocation",
       {{"artifactLocation", {{"uri", UriOfPath(finding.file)}}},
        {"region",
         {{"startLine", finding.at.line},
          {"startColumn", finding.at.column}}}}}};
  return {{"ruleId", finding.rule->name},
          {"ruleIndex", std::distance(std::begin(rules::kAll), rule)},
          {"level", LevelOf(*finding.rule)},
          {"message", {{"text", finding.text}}},
          {"locations", Json::array({location})}};
}

}  // namespace

std::string TextOf(const Finding& finding, bool color) {
  const bool is_error = finding.rule->severity == Severity::kError;
  const std::string start = is_error ? "\x1B[1;31m" : "\x1B[1;35m";
  const std::string level = LevelOf(*finding.rule);
  return Printable(finding.file) + ":" + std::to_string(finding.at.line) + ":" +
         std::to_string(finding.at.column) + ": " +
         (color ? start + level + "\x1B[0m" : level) + ": " + finding.text +
         " [" + std::string(finding.rule->name) + "]";
}

std::string TextReport(const Findings& findings, bool color) {
  std::string report;
  for (const Finding& finding : findings) {
    report += TextOf(finding, color) + "\n";
  }
  return report;
}

std::string JsonReport(const Findings& findings) {
  Json list = Json::array();
  for (const Finding& finding : findings) {
    list.push_back({{"file", finding.file},
                    {"line", finding.at.line},
                    {"column", finding.at.column},
                    {"severity", LevelOf(*finding.rule)},
                    {"name", finding.rule->name},
                    {"text", finding.text}});
  }
  return JsonText({{"schema", 1},
                   {"errors", Count(findings, Severity::kError)},
                   {"warnings", Count(findings, Severity::kWarning)},
                   {"findings", list}});
}

std::string SarifReport(const Findings& findings) {
  Json results = Json::array();
  for (const Finding& finding : findings) {
    results.push_back(SarifResult(finding));
  }
  const Json driver = {{"name", "velmo-help"},
                       {"semanticVersion", VELMO_VERSION},
                       {"rules", SarifRules()}};
  const Json run = {{"tool", {{"driver", driver}}},
                    {"columnKind", "unicodeCodePoints"},
                    {"results", results}};
  return JsonText({{"$schema", kSarifSchema},
                   {"version", "2.1.0"},
                   {"runs", Json::array({run})}});
}

std::string Summary(const Findings& findings) {
  return Counted(Count(findings, Severity::kError), "error") + ", " +
         Counted(Count(findings, Severity::kWarning), "warning");
}

}  // namespace velmohelp::tool
