// velmo-help check
#include <algorithm>
#include <memory>
#include <tuple>

#include "tools/check/baseline.h"
#include "tools/check/check_config.h"
#include "tools/check/check_map.h"
#include "tools/check/check_pages.h"
#include "tools/check/compare.h"
#include "tools/check/content.h"
#include "tools/check/report.h"
#include "tools/check/rules.h"
#include "tools/commands.h"
#include "tools/files.h"
#include "tools/printable.h"

namespace velmohelp::tool {
namespace {

namespace fs = std::filesystem;

constexpr char kExamples[] =
    "Examples:\n"
    "  velmo-help check help/\n"
    "  velmo-help check Sketch.helpcfg content/en_US/Basics/helpmap.txt\n"
    "  velmo-help check help/ --ids ids.txt --locales\n"
    "  velmo-help check help/ --all > known.txt; velmo-help check help/ \\\n"
    "      --baseline known.txt\n"
    "\n"
    "Reads only. Exit status: 0 without findings, 1 with some.";

enum class Format { kText, kJson, kSarif };

struct Options {
  CommonOptions common;
  std::vector<fs::path> paths;
  Format format = Format::kText;
  fs::path ids;
  fs::path against;
  fs::path baseline;
  bool locales = false;
  bool all = false;
  std::vector<std::string> without;
};

MapFiles OpenMaps(const std::vector<fs::path>& paths, Findings& findings) {
  MapFiles maps;
  for (const fs::path& path : paths) {
    try {
      maps.push_back(std::make_unique<MapFile>(path));
    } catch (const FileError& error) {
      findings.push_back(
          {&rules::kUnreadable, path.string(), {}, Printable(error.what())});
    }
  }
  return maps;
}

void Sort(Findings& findings) {
  std::ranges::stable_sort(findings, {}, [](const Finding& finding) {
    return std::tuple(std::string_view(finding.file), finding.at.line,
                      finding.at.column);
  });
}

bool IsWithout(const Options& options, const Rule& rule) {
  return std::ranges::find(options.without, rule.name) != options.without.end();
}

Findings Check(const Options& options, const Console& console) {
  Progress progress(console, Progress::Clock::now());
  Findings findings;
  const Inputs inputs = FindInputs(options.paths);
  for (const fs::path& config : inputs.configs) CheckConfig(config, findings);
  const MapFiles maps = OpenMaps(inputs.maps, findings);
  for (const auto& map : maps) {
    CheckMap(*map, findings);
    CheckPages(*map, progress, findings);
  }
  if (!options.ids.empty()) CheckIds(options.ids, maps, findings);
  if (options.locales) CheckLocales(maps, findings);
  if (!options.against.empty()) {
    const MapFiles earlier =
        OpenMaps(FindInputs({options.against}).maps, findings);
    CheckAgainst(earlier, maps, findings);
  }
  return findings;
}

int Run(const Options& options, const Console& console) {
  Findings findings = Check(options, console);
  std::erase_if(findings, [&](const Finding& finding) {
    return IsWithout(options, *finding.rule);
  });
  Sort(findings);
  if (!options.baseline.empty()) {
    RemoveKnown(ReadWholeFile(options.baseline), findings);
  }
  const bool is_clean = findings.empty();
  const Report report = ReportOf(std::move(findings), options.all);
  switch (options.common.json ? Format::kJson : options.format) {
    case Format::kText:
      console.out << TextReport(report, options.common.UsesColor(console));
      if (!is_clean) console.err << Summary(report) << "\n";
      break;
    case Format::kJson:
      console.out << JsonReport(report);
      break;
    case Format::kSarif:
      console.out << SarifReport(report);
      break;
  }
  return is_clean ? 0 : 1;
}

void AddOptions(CLI::App& command, Options& options) {
  command
      .add_option("PATH", options.paths,
                  "Configurations (.helpcfg), help maps (helpmap.txt), or "
                  "folders with them")
      ->required();
  static const std::map<std::string, Format> kFormats = {
      {"text", Format::kText},
      {"json", Format::kJson},
      {"sarif", Format::kSarif}};
  command
      .add_option("--format", options.format,
                  "text, json or sarif (default text)")
      ->transform(CLI::CheckedTransformer(kFormats).description(""))
      ->option_text("FORMAT");
  command
      .add_option("--ids", options.ids,
                  "The application's page ids, one per line: each must be in a "
                  "help map")
      ->option_text("FILE");
  command.add_flag(
      "--locales", options.locales,
      "Compare help maps whose folders differ in the locale alone");
  command
      .add_option("--against", options.against,
                  "An earlier version: its ids must still be there")
      ->option_text("FOLDER");
  command
      .add_option("--baseline", options.baseline,
                  "An earlier report as text: what it has is accepted")
      ->option_text("FILE");
  command.add_flag("--all", options.all,
                   "Print each finding, also of a file with more than " +
                       std::to_string(kMostOfAFile));
  std::vector<std::string> names;
  for (const Rule* rule : rules::kAll) names.emplace_back(rule->name);
  command
      .add_option("--without", options.without,
                  "Leave out findings of this name; may be repeated")
      ->check(CLI::IsMember(names).description(""))
      ->option_text("NAME")
      ->expected(1)
      ->take_all();
}

}  // namespace

void AddCheckCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<Options>();
  CLI::App* command = AddSubcommand(
      app, "check", "Find mistakes in configurations, help maps and pages",
      kExamples, options->common);
  AddOptions(*command, *options);
  command->callback([&action, options] {
    action = [options](const Console& console) {
      return Run(*options, console);
    };
  });
}

}  // namespace velmohelp::tool
