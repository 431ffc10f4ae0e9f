// velmo-help explain, display, open, search
#include <memory>

#include "platform/locations.h"
#include "tools/command_line.h"
#include "tools/commands.h"
#include "tools/explain/new_file.h"
#include "tools/explain/privacy.h"
#include "tools/explain/report.h"
#include "tools/explain/request_machine.h"
#include "tools/explain/status.h"
#include "tools/json.h"

namespace velmohelp::tool {
namespace {

constexpr char kExplainExamples[] =
    "Examples:\n"
    "  velmo-help explain display Sketch en_US lines \\\n"
    "      --host /opt/sketch/bin/sketch\n"
    "  velmo-help explain search Sketch en_US \"dashed lines\" --offline\n"
    "  velmo-help explain display Sketch en_US lines --report help.txt\n"
    "\n"
    "Opens and writes nothing, but asks the help server as the client does.\n"
    "Exit status: the request's own result; 65 when the host would hang.";

struct Options {
  CommonOptions common;
  MachineOptions machine;
  std::string kind = "display";
  Request request;
  bool verbose = false;
  std::string report;
  bool for_real = false;
};

Request::Kind KindOf(const std::string& name) {
  if (name == "open") return Request::Kind::kOpen;
  return name == "search" ? Request::Kind::kSearch : Request::Kind::kDisplay;
}

/// The whole of it, for a bug report.
std::string ReportText(const Explanation& explanation,
                       const std::string& status) {
  const std::string text =
      "velmo-help " VELMO_VERSION "\n" +
      ShellCommand({"explain", NameOf(explanation.run.request.kind),
                    explanation.run.request.product,
                    explanation.run.request.locale,
                    explanation.run.request.what}) +
      "\n\n" + FirstLines(explanation, false) + "\n" + Story(explanation) +
      "\nEvery step\n" + TrailText(explanation.run.trail) + "\n" + status;
  return WithoutNames(text, NamesOfHere(), kOnlineHelpHost);
}

void Print(const Explanation& explanation, const Options& options,
           const Console& console) {
  if (options.common.json) {
    console.out << JsonText(JsonOf(explanation));
    return;
  }
  console.out << FirstLines(explanation, options.common.UsesColor(console));
  if (!options.for_real) console.out << "\n" << Story(explanation);
  if (options.verbose) {
    console.out << "\nEvery step\n" << TrailText(explanation.run.trail);
  }
}

int Explain(const Options& options, const Console& console) {
  // Before this process may move into a sandbox.
  std::optional<NewFile> report;
  if (!options.report.empty()) report.emplace(options.report);
  RequestMachine machine(options.machine, !options.for_real);
  Run run;
  run.request = options.request;
  Make(machine.machine(), machine.helper_folder(), run);
  const Arguments words = run.start ? run.start->words : Arguments{};
  const Surroundings around = machine.Look(words);
  if (!machine.not_entered().empty()) {
    console.err << "velmo-help: the sandbox of process " << options.machine.pid
                << " cannot be entered (" << machine.not_entered()
                << "); what follows is seen from outside\n";
  }
  const Explanation explanation = {.run = run,
                                   .around = around,
                                   .cause = CauseOf(run, around),
                                   .what_if = WordsOf(options.machine.what_if),
                                   .for_real = options.for_real};
  Print(explanation, options, console);
  if (report) report->Write(ReportText(explanation, ""));
  return run.endless ? kExitBadInput : run.result.code;
}

void AddRequest(CLI::App& command, Options& options, const char* what) {
  command.add_option("PRODUCT", options.request.product, "The product id")
      ->required();
  command.add_option("LOCALE", options.request.locale, "Such as en_US")
      ->required();
  command.add_option("WHAT", options.request.what, what)->required();
  AddHostOptions(command, options.machine);
  command.add_flag("--verbose", options.verbose, "Print every step");
}

void SetAction(CLI::App& command, Action& action,
               const std::shared_ptr<Options>& options) {
  command.callback([&action, options] {
    options->request.kind = KindOf(options->kind);
    action = [options](const Console& console) {
      return Explain(*options, console);
    };
  });
}

std::string DoExamples(const std::string& name, const std::string& what) {
  return "Examples:\n  velmo-help " + name + " Sketch en_US " + what +
         " \\\n      --host /opt/sketch/bin/sketch\n\n"
         "Exit status: the request's own result.";
}

void AddDoCommand(CLI::App& app, Action& action, const std::string& name,
                  const std::string& summary, const char* what,
                  const std::string& example) {
  const auto options = std::make_shared<Options>();
  CLI::App* command = AddSubcommand(app, name, summary,
                                    DoExamples(name, example), options->common);
  options->kind = name;
  options->for_real = true;
  AddRequest(*command, *options, what);
  SetAction(*command, action, options);
}

}  // namespace

void AddExplainCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<Options>();
  CLI::App* command = AddSubcommand(
      app, "explain", "Say what a request would show, and why; opens nothing",
      kExplainExamples, options->common);
  command->add_option("REQUEST", options->kind, "display, open or search")
      ->required()
      ->check(CLI::IsMember({"display", "open", "search"}).description(""));
  AddRequest(*command, *options, "The page id, the URL or the text");
  AddWhatIfOptions(*command, options->machine);
  command
      ->add_option("--report", options->report,
                   "Write all of it to a new file, for a bug report: without "
                   "the names of the user, the home and hosts")
      ->option_text("FILE");
  SetAction(*command, action, options);
}

void AddDisplayCommand(CLI::App& app, Action& action) {
  AddDoCommand(app, action, "display", "Show the page of a page id",
               "The page id", "lines");
}

void AddOpenCommand(CLI::App& app, Action& action) {
  AddDoCommand(app, action, "open", "Open a URL", "The URL",
               "https://help.example.com/");
}

void AddSearchCommand(CLI::App& app, Action& action) {
  AddDoCommand(app, action, "search", "Search the help", "The text",
               "\"dashed lines\"");
}

}  // namespace velmohelp::tool
