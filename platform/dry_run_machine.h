// A machine on which a request changes nothing: what would be shown is noted.
#ifndef PLATFORM_DRY_RUN_MACHINE_H_
#define PLATFORM_DRY_RUN_MACHINE_H_

#include <optional>
#include <string>

#include "platform/forwarding_machine.h"

namespace velmohelp {

/// What a request would have started.
struct NotedStart {
  enum class Kind { kViewer, kBrowser };

  Kind kind = Kind::kViewer;
  /// Both are empty for a browser that the desktop would start itself, as it
  /// does for a sandbox.
  std::string program;
  Arguments arguments;
  /// For the browser.
  std::string url;
};

/// Passes questions on to another machine, and notes the start of the viewer or
/// the browser instead of making it. Makes no folder.
///
/// A start that it notes succeeds when there is a program that can be started.
/// Whether that keeps running is not known without starting it.
class DryRunMachine : public ForwardingMachine {
 public:
  using ForwardingMachine::ForwardingMachine;

  /// The last start; nullopt when there was none, or none that would succeed.
  const std::optional<NotedStart>& start() const { return start_; }

  std::optional<std::string> PreferencesFolder(bool create) override;
  bool StartProgram(const std::string& program,
                    const Arguments& arguments) override;
  bool OpenInBrowser(const std::string& url) override;

 private:
  std::optional<NotedStart> start_;
};

}  // namespace velmohelp

#endif  // PLATFORM_DRY_RUN_MACHINE_H_
