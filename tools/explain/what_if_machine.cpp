#include "tools/explain/what_if_machine.h"

namespace velmohelp::tool {

/// The framework is the only way to the viewer.
std::optional<std::string> WhatIfMachine::BundleDirectory(
    const std::string& identifier) {
  if (what_if_.no_viewer) return std::nullopt;
  return machine().BundleDirectory(identifier);
}

std::optional<Reachability> WhatIfMachine::HostReachability(
    const std::optional<std::string>& host) {
  if (what_if_.offline) return Reachability{};
  if (what_if_.online) return Reachability{.reachable = true};
  return machine().HostReachability(host);
}

std::optional<std::string> WhatIfMachine::Preference(const std::string& domain,
                                                     const std::string& key,
                                                     PreferenceScope scope) {
  const auto stated = what_if_.preferences.find(key);
  if (stated != what_if_.preferences.end()) return stated->second;
  if (what_if_.online && key == "VelmoOnlineDefault") return std::nullopt;
  return machine().Preference(domain, key, scope);
}

}  // namespace velmohelp::tool
