// A machine that writes down what it is asked.
#ifndef TOOLS_EXPLAIN_TRACING_MACHINE_H_
#define TOOLS_EXPLAIN_TRACING_MACHINE_H_

#include <optional>
#include <string>

#include "platform/forwarding_machine.h"
#include "tools/explain/trail.h"

namespace velmohelp::tool {

/// Passes every question on to another machine, and appends it with its answer
/// to a trail. Asks that machine's helpers why, when the answer is no.
class TracingMachine : public ForwardingMachine {
 public:
  /// helper_folder: where the helper programs are.
  TracingMachine(Machine& machine, std::string helper_folder, Trail& trail)
      : ForwardingMachine(machine),
        helper_folder_(std::move(helper_folder)),
        trail_(trail) {}

  std::optional<FileEntry> FindFile(const std::string& path) override;
  std::optional<std::string> PreferencesFolder(bool create) override;
  std::optional<std::string> ResourcesDirectory() override;
  std::optional<std::string> BundleDirectory(
      const std::string& identifier) override;
  std::optional<std::string> ApplicationExecutable(
      const std::string& directory) override;
  std::optional<int> RunToEnd(const std::string& program,
                              const Arguments& arguments) override;
  std::optional<std::string> FirstOutput(const std::string& program,
                                         const Arguments& arguments) override;
  bool StartProgram(const std::string& program,
                    const Arguments& arguments) override;
  bool OpenInBrowser(const std::string& url) override;
  std::optional<Reachability> HostReachability(
      const std::optional<std::string>& host) override;
  std::optional<std::string> Preference(const std::string& domain,
                                        const std::string& key,
                                        PreferenceScope scope) override;
  bool FetchText(const std::string& url,
                 std::chrono::milliseconds timeout) override;

 private:
  Step& Add(const char* verb, Arguments arguments, bool ok, std::string answer);
  std::optional<std::string> Add(const char* verb, Arguments arguments,
                                 std::optional<std::string> answer);
  std::string AskWhy(const char* helper, const std::string& about,
                     const char* late);

  std::string helper_folder_;
  Trail& trail_;
};

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_TRACING_MACHINE_H_
