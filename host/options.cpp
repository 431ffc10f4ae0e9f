#include "host/options.h"

#include <string_view>

namespace velmohelp {
namespace {

using Action = Options::Action;

bool IsOption(std::string_view word) {
  return word.starts_with('-') && word != "-";
}

/// Returns how many arguments the option uses up; 0 when it is unknown or lacks
/// its text.
std::size_t ParseOption(std::span<char*> rest, Options& options) {
  const std::string_view word = rest[0];
  if (word == "--help" || word == "-h") options.action = Action::kPrintUsage;
  if (word == "--version" || word == "-v") {
    options.action = Action::kPrintVersion;
  }
  if (word == "-i") options.prompts = true;
  if (word == "-i" || options.action != Action::kRun) return 1;
  if (word != "-e" || rest.size() < 2) return 0;
  options.statements.push_back(rest[1]);
  return 2;
}

}  // namespace

Options ParseOptions(std::span<char*> arguments) {
  Options options;
  auto rest = arguments.subspan(arguments.empty() ? 0 : 1);
  while (!rest.empty() && IsOption(rest[0])) {
    if (std::string_view(rest[0]) == "--") {
      rest = rest.subspan(1);
      break;
    }
    const std::size_t used = ParseOption(rest, options);
    if (used == 0) {
      options.action = Action::kRefuse;
      options.refused = rest[0];
    }
    if (options.action != Action::kRun) return options;
    rest = rest.subspan(used);
  }
  options.script = rest;
  return options;
}

}  // namespace velmohelp
