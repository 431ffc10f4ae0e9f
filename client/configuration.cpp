#include "client/configuration.h"

#include <cstring>
#include <string>

namespace velmohelp {
namespace {

InitReturnCode CodeOf(HelpConfigStatus status) {
  switch (status) {
    case HelpConfigStatus::kAccepted:
      return kInitSuccess;
    case HelpConfigStatus::kUnreadable:
      return kInitMissingConfig;
    case HelpConfigStatus::kInvalid:
      break;
  }
  return kInitInvalidConfig;
}

}  // namespace

void RereadConfiguration(const Client& client, const std::string& locale) {
  client.state.init_status = CodeOf(UpdateHelpConfig(
      client.machine, ConfigView(client.state, client.observer), locale));
}

Configuration ConfigurationOf(const ClientState& state) {
  if (state.init_status == kInitMissingConfig) return Configuration::kMissing;
  if (state.init_status == kInitInvalidConfig) return Configuration::kInvalid;
  return state.help_path_count < 1 ? Configuration::kInvalid
                                   : Configuration::kUsable;
}

bool HasText(const char* text) {
  return text != nullptr && text[std::strspn(text, " ")] != '\0';
}

}  // namespace velmohelp
