#include <exception>
#include <optional>

#include "online/network_status.h"
#include "platform/preference.h"

namespace velmohelp {
namespace {

using ITEMInternal::NexletPreference;

constexpr char kDomain[] = "com.velmo.VelmoOnlineHelp";
constexpr char kKey[] = "VelmoOnlineDefault";

/// The administrator decides for this host, the user for every host: the two
/// scopes are crossed, and existing stores are laid out that way.
std::optional<PreferenceScope> ScopeOf(NexletPreference which) {
  switch (which) {
    case ITEMInternal::kAdminPreference:
      return PreferenceScope::kAnyUserCurrentHost;
    case ITEMInternal::kUserPreference:
      return PreferenceScope::kCurrentUserAnyHost;
  }
  return std::nullopt;
}

}  // namespace

std::string OnlinePreferenceText(Machine& machine, NexletPreference which) {
  const auto scope = ScopeOf(which);
  if (!scope) return "";
  try {
    return PreferenceText(machine, kDomain, kKey, *scope);
  } catch (const std::exception&) {
    // A preference that cannot be read leaves online help on.
    return "";
  }
}

bool IsOnlineHelpAllowed(Machine& machine, NexletPreference which) {
  return OnlinePreferenceText(machine, which) != "0";
}

bool IsOnlineHelpAllowed(Machine& machine) {
  return IsOnlineHelpAllowed(machine, ITEMInternal::kAdminPreference) &&
         IsOnlineHelpAllowed(machine, ITEMInternal::kUserPreference);
}

}  // namespace velmohelp
