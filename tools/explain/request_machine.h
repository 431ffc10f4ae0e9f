// The machine that a command's request runs on.
#ifndef TOOLS_EXPLAIN_REQUEST_MACHINE_H_
#define TOOLS_EXPLAIN_REQUEST_MACHINE_H_

#include <memory>
#include <string>

#include "tools/command.h"
#include "tools/explain/cause.h"
#include "tools/explain/what_if_machine.h"

namespace velmohelp::tool {

/// Who is asked, and what is otherwise. The person's options.
struct MachineOptions {
  std::string host;
  std::string pid;
  WhatIf what_if;
};

/// Adds --host and --pid to a command.
void AddHostOptions(CLI::App& command, MachineOptions& options);
/// Adds --offline, --online, --no-viewer and --pref.
void AddWhatIfOptions(CLI::App& command, MachineOptions& options);

/// The what-if options as the person would write them.
Arguments WordsOf(const WhatIf& what_if);

/// The machine as the host would see it.
class RequestMachine {
 public:
  /// dry: nothing is started and nothing made. May move this process into the
  /// host's sandbox; see BecomeProcess, also for what is thrown.
  RequestMachine(const MachineOptions& options, bool dry);
  RequestMachine(const RequestMachine&) = delete;
  RequestMachine& operator=(const RequestMachine&) = delete;
  ~RequestMachine();

  Machine& machine();
  const std::string& helper_folder() const { return helper_folder_; }
  /// Why the host's sandbox could not be entered; "" when it was, or is none.
  const std::string& not_entered() const { return not_entered_; }

  /// What an explanation needs to know of here. words: the browser's command.
  Surroundings Look(const Arguments& words);

 private:
  struct Layers;

  std::string helper_folder_;
  std::string host_;
  bool host_is_named_;
  std::string not_entered_;
  std::unique_ptr<Layers> layers_;
};

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_REQUEST_MACHINE_H_
