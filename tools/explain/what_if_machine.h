// A machine on which some things are otherwise.
#ifndef TOOLS_EXPLAIN_WHAT_IF_MACHINE_H_
#define TOOLS_EXPLAIN_WHAT_IF_MACHINE_H_

#include <map>
#include <optional>
#include <string>

#include "platform/forwarding_machine.h"

namespace velmohelp::tool {

/// What is otherwise.
struct WhatIf {
  /// The help server cannot be reached.
  bool offline = false;
  /// Nobody has switched online help off, and its server can be reached.
  bool online = false;
  /// No help viewer is installed.
  bool no_viewer = false;
  /// Preferences that the administrator and the user have both set.
  std::map<std::string, std::string> preferences = {};
};

class WhatIfMachine : public ForwardingMachine {
 public:
  WhatIfMachine(Machine& machine, WhatIf what_if)
      : ForwardingMachine(machine), what_if_(std::move(what_if)) {}

  std::optional<std::string> BundleDirectory(
      const std::string& identifier) override;
  std::optional<Reachability> HostReachability(
      const std::optional<std::string>& host) override;
  std::optional<std::string> Preference(const std::string& domain,
                                        const std::string& key,
                                        PreferenceScope scope) override;

 private:
  WhatIf what_if_;
};

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_WHAT_IF_MACHINE_H_
