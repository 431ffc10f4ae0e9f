#include "platform/dry_run_machine.h"

namespace velmohelp {

/// A folder that is missing is as empty as the one that would be made.
std::optional<std::string> DryRunMachine::PreferencesFolder(bool) {
  return machine().PreferencesFolder(false);
}

bool DryRunMachine::StartProgram(const std::string& program,
                                 const Arguments& arguments) {
  const auto file = machine().FindFile(program);
  start_.reset();
  if (!file || file->is_directory) return false;
  start_ = NotedStart{.kind = NotedStart::Kind::kViewer,
                      .program = program,
                      .arguments = arguments,
                      .url = ""};
  return true;
}

bool DryRunMachine::OpenInBrowser(const std::string& url) {
  const auto command = machine().FindBrowser(url);
  start_.reset();
  if (!command) return false;
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
