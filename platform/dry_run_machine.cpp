#include "platform/dry_run_machine.h"

namespace velmohelp {

/// A folder that is missing is as empty as the one that would be made.
std::optional<std::string> DryRunMachine::PreferencesFolder(bool) {
  return machine().PreferencesFolder(false);
}

bool DryRunMachine::StartProgram(const std::string& program,
                                 const Arguments& arguments) {
  start_.reset();
  if (!machine().CanStart(program)) return false;
  start_ = NotedStart{.kind = NotedStart::Kind::kViewer,
                      .program = program,
                      .arguments = arguments,
                      .url = ""};
  return true;
}

bool DryRunMachine::OpenInBrowser(const std::string& url) {
  start_.reset();
  const auto command = machine().FindBrowser(url);
  if (!command) return false;
  if (!command->empty() && !machine().CanStart(command->front())) return false;
  start_ = NotedStart{.kind = NotedStart::Kind::kBrowser,
                      .program = "",
                      .arguments = {},
                      .url = url};
  if (command->empty()) return true;
  start_->program = command->front();
  start_->arguments.assign(command->begin() + 1, command->end());
  return true;
}

}  // namespace velmohelp
