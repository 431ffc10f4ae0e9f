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

std::string TextOf(const Report::LeftOut& left_out) {
  return Printable(left_out.file) + ": " +
         Counted(left_out.count, "more finding") + "; --all prints all";
}

/// What SARIF has for what a tool says of its own run.
Json SarifInvocation(const Report& report) {
  Json notes = Json::array();
  for (const Report::LeftOut& left_out : report.left_out) {
    notes.push_back(
        {{"level", "note"}, {"message", {{"text", TextOf(left_out)}}}});
  }
  return {{"executionSuccessful", true}, {"toolExecutionNotifications", notes}};
}

}  // namespace

Report ReportOf(Findings findings, bool all) {
  Report report;
  std::string file;
  std::size_t of_file = 0;
  for (Finding& finding : findings) {
    const bool is_error = finding.rule->severity == Severity::kError;
    ++(is_error ? report.errors : report.warnings);
    if (finding.file != file) of_file = 0;
    if (of_file == 0) file = finding.file;
    if (++of_file <= kMostOfAFile || all) {
      report.findings.push_back(std::move(finding));
    } else if (of_file == kMostOfAFile + 1) {
      report.left_out.push_back({file, 1});
    } else {
      ++report.left_out.back().count;
    }
  }
  return report;
}

std::string TextOf(const Finding& finding, bool color) {
  const bool is_error = finding.rule->severity == Severity::kError;
  const std::string start = is_error ? "\x1B[1;31m" : "\x1B[1;35m";
  const std::string level = LevelOf(*finding.rule);
  return Printable(finding.file) + ":" + std::to_string(finding.at.line) + ":" +
         std::to_string(finding.at.column) + ": " +
         (color ? start + level + "\x1B[0m" : level) + ": " + finding.text +
         " [" + std::string(finding.rule->name) + "]";
}

std::string TextReport(const Report& report, bool color) {
  std::string text;
  for (const Finding& finding : report.findings) {
    text += TextOf(finding, color) + "\n";
  }
  return text;
}

std::string JsonReport(const Report& report) {
  Json list = Json::array();
  for (const Finding& finding : report.findings) {
    list.push_back({{"file", finding.file},
                    {"line", finding.at.line},
                    {"column", finding.at.column},
                    {"severity", LevelOf(*finding.rule)},
                    {"name", finding.rule->name},
                    {"text", finding.text}});
  }
  Json left_out = Json::array();
  for (const Report::LeftOut& file : report.left_out) {
    left_out.push_back({{"file", file.file}, {"count", file.count}});
  }
  return JsonText({{"schema", 1},
                   {"errors", report.errors},
                   {"warnings", report.warnings},
                   {"findings", list},
                   {"left_out", left_out}});
}

std::string SarifReport(const Report& report) {
  Json results = Json::array();
  for (const Finding& finding : report.findings) {
    results.push_back(SarifResult(finding));
  }
  const Json driver = {{"name", "velmo-help"},
                       {"semanticVersion", VELMO_VERSION},
                       {"rules", SarifRules()}};
  const Json run = {{"tool", {{"driver", driver}}},
                    {"columnKind", "unicodeCodePoints"},
                    {"invocations", Json::array({SarifInvocation(report)})},
                    {"results", results}};
  return JsonText({{"$schema", kSarifSchema},
                   {"version", "2.1.0"},
                   {"runs", Json::array({run})}});
}

std::string Summary(const Report& report) {
  std::string text;
  for (const Report::LeftOut& left_out : report.left_out) {
    text += TextOf(left_out) + "\n";
  }
  return text + Counted(report.errors, "error") + ", " +
         Counted(report.warnings, "warning");
}

}  // namespace velmohelp::tool
