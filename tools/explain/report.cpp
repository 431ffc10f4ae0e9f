#include "tools/explain/report.h"

#include "tools/explain/cause_parts.h"
#include "tools/printable.h"
#include "util/str_cat.h"

namespace velmohelp::tool {
namespace {

constexpr char kPlainCharacters[] =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"
    "-._~:/?#@+,=%";

std::string ShellWord(const std::string& word) {
  std::string text = PrintableWhole(word);
  if (!text.empty() &&
      text.find_first_not_of(kPlainCharacters) == std::string::npos) {
    return text;
  }
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? "'\\''" : std::string(1, c);
  return quoted + "'";
}

std::string Colored(const std::string& text, const char* code, bool color) {
  return color ? std::string("\033[") + code + "m" + text + "\033[0m" : text;
}

std::string ResultText(const Run& run) {
  if (run.endless) return "no result, the host hangs";
  return std::to_string(run.result.code) + " " + run.result.name + " of " +
         run.result.table;
}

/// What the start shows in place of the page that was asked for.
std::string InsteadOf(const Run& run) {
  if (run.request.kind != Request::Kind::kDisplay) return "";
  int searches = 0;
  bool found = false;
  for (std::size_t i = run.first; i < run.trail.size(); ++i) {
    const Step& step = run.trail[i];
    if (step.kind == Step::Kind::kLookUp) ++searches;
    if (step.kind == Step::Kind::kContentFolder) found = step.ok;
  }
  if (searches == 0) return "";
  if (!found) return " with the bare page id, which no folder knows";
  return searches > 1 ? " with the home page in place of the page" : "";
}

std::string StartText(const Explanation& explanation) {
  const Run& run = explanation.run;
  if (!run.start) {
    return explanation.for_real ? "nothing was started"
                                : "nothing would be started";
  }
  const std::string would = explanation.for_real ? "started" : "would start";
  const std::string whom =
      run.start->kind == Start::Kind::kViewer ? "the viewer" : "the browser";
  if (run.start->words.empty()) {
    return would + " " + whom + " by the desktop, for " +
           ShellWord(run.start->target);
  }
  return would + " " + whom + InsteadOf(run) + ": " +
         ShellCommand(run.start->words);
}

std::string Indented(const std::string& line, int depth = 1) {
  return std::string(static_cast<std::size_t>(depth) * 2, ' ') + line + "\n";
}

/// The configuration that counts, with its values.
std::string ConfigurationText(const Run& run) {
  std::string text = "Configuration\n";
  const Step* last = nullptr;
  for (const Step& step : run.trail) {
    const bool is_config = step.kind == Step::Kind::kKeyFile &&
                           step.subject[0].ends_with(".helpcfg");
    if (is_config) last = &step;
  }
  if (last == nullptr) return "";
  text += Indented(PrintableWhole(last->subject[0]) +
                   (last->ok ? ", " + last->answer : InBrackets(last->reason)));
  if (!last->ok) return text;
  const ClientState& state = run.variables.state;
  text += Indented("id " + Quoted(state.config_id) + ", baseUrl " +
                   Quoted(state.base_url));
  text += Indented("viewer " + (state.app_id_is_null ? "none (appId NULL)"
                                                     : Quoted(state.app_id)));
  return text;
}

std::string ChoiceText(const Run& run) {
  if (!run.initialised) return "";
  const ViewerRule rule = ViewerRuleOf(run);
  return "Viewer or browser\n" +
         Indented((rule.usable ? "viewer: " : "browser: ") + rule.cause.why);
}

bool AskedTheNetwork(const Run& run) {
  for (std::size_t i = run.first; i < run.trail.size(); ++i) {
    if (run.trail[i].name == "Preference") return true;
  }
  return false;
}

std::string OnlineText(const Run& run) {
  if (!AskedTheNetwork(run)) return "";
  const std::string why = WhyOffline(run);
  return "Online help\n" +
         Indented(run.variables.is_online
                      ? "online: allowed, and its server is reachable"
                      : why);
}

/// The folders that a search for a page went through.
std::string FoldersText(const Run& run) {
  std::string text;
  for (const FolderVisit& visit : FirstVisits(run)) {
    text += Indented(PrintableWhole(visit.folder->subject[0]) + ": " +
                     VerdictOn(visit, run));
  }
  return text;
}

std::string UnmarkedFolders(const Run& run) {
  std::string text;
  for (std::int32_t i = 0; i < run.variables.help_path_count; ++i) {
    const auto& row = run.variables.help_paths[i];
    if (row[1] == "YES") continue;
    text += Indented("folder " + Quoted(row[0]) +
                     " takes no part: contextSensitivity is " + Quoted(row[1]));
  }
  return text;
}

std::string PageText(const Run& run) {
  const Step* page = nullptr;
  int searches = 0;
  for (std::size_t i = run.first; i < run.trail.size(); ++i) {
    if (run.trail[i].kind != Step::Kind::kLookUp) continue;
    if (++searches == 1) page = &run.trail[i];
  }
  const std::string folders = FoldersText(run);
  if (page == nullptr && folders.empty()) return "";
  std::string text = "Page\n";
  if (page != nullptr) {
    text += Indented(Quoted(run.request.what) + " is the page " +
                     Quoted(page->subject[0]) + ", in help maps " +
                     Quoted(page->subject[1]));
  }
  text += folders + UnmarkedFolders(run);
  if (searches > 1) {
    text += Indented("then the home page, \"VX_HOME.html\", was looked for");
  }
  return text;
}

std::string BrowserText(const Explanation& explanation) {
  const BrowserEntry& browser = explanation.around.browser;
  if (browser.file.empty() && browser.name.empty()) return "";
  const std::string confinement = ConfinementOf(browser);
  return "Browser\n" +
         Indented(PrintableWhole(browser.name) + ", " +
                  PrintableWhole(browser.file) +
                  (confinement.empty() ? "" : ", a " + confinement));
}

std::string QuestionLine(const Step& step) {
  std::string line = step.name;
  for (const std::string& word : step.subject) {
    line += StrCat({" ", ShellWord(word)});
  }
  return line + ": " + PrintableWhole(step.answer) + InBrackets(step.reason);
}

std::string ValueLine(const Step& step) {
  std::string line = "value of " + step.name + ": ";
  if (!step.ok) return line + "none";
  line += Quoted(step.answer) + ", line " + std::to_string(step.line);
  return step.elsewhere ? line + ", inside another word" : line;
}

std::string MapLine(const Step& step) {
  const std::string line =
      "read the help map " + PrintableWhole(step.subject[0]);
  if (!step.ok) return line + ": cannot be read" + InBrackets(step.reason);
  return line + ": " + std::to_string(step.map.entries) + " entries" +
         (step.map.has_home ? "" : ", no VX_HOME") +
         (step.map.has_key ? ", the page is " + Quoted(step.map.page)
                           : ", not this one");
}

}  // namespace

std::string ShellCommand(const Arguments& words) {
  std::string line;
  for (const std::string& word : words) {
    line += StrCat({line.empty() ? "" : " ", ShellWord(word)});
  }
  return line;
}

std::string LineOf(const Step& step) {
  switch (step.kind) {
    case Step::Kind::kQuestion:
      return QuestionLine(step);
    case Step::Kind::kKeyFile:
      return "read " + PrintableWhole(step.subject[0]) + ": " +
             (step.ok ? step.answer
                      : "cannot be read" + InBrackets(step.reason));
    case Step::Kind::kValue:
      return ValueLine(step);
    case Step::Kind::kLookUp:
      return "look for the page " + Quoted(step.subject[0]) + ", in maps " +
             Quoted(step.subject[1]);
    case Step::Kind::kHelpMap:
      return MapLine(step);
    case Step::Kind::kContentFolder:
      break;
  }
  return "content folder " + PrintableWhole(step.subject[0]) +
         (step.ok ? " taken: " : " refused: ") + PrintableWhole(step.answer);
}

std::string FirstLines(const Explanation& explanation, bool color) {
  const bool good =
      explanation.run.result.code == 0 && !explanation.run.endless;
  return Colored(ResultText(explanation.run), good ? "1;32" : "1;31", color) +
         ": " + StartText(explanation) + "\n" + Colored("why:", "1", color) +
         " " + explanation.cause.why + "\n" + Colored("do:", "1", color) + " " +
         explanation.cause.advice + "\n";
}

std::string Story(const Explanation& explanation) {
  const Run& run = explanation.run;
  std::string text;
  if (!explanation.what_if.empty()) {
    text += "What if: " + ShellCommand(explanation.what_if) + "\n";
  }
  text += "Host\n" + Indented(PrintableWhole(explanation.around.host));
  return text + ConfigurationText(run) + ChoiceText(run) + OnlineText(run) +
         PageText(run) + BrowserText(explanation);
}

std::string TrailText(const Trail& trail) {
  std::string text;
  std::size_t number = 0;
  for (const Step& step : trail) {
    const std::string digits = std::to_string(++number);
    text += std::string(digits.size() < 4 ? 4 - digits.size() : 0, ' ') +
            digits + "  " + LineOf(step) + "\n";
  }
  return text;
}

}  // namespace velmohelp::tool
