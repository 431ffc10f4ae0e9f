// The QTV tool, which knows whether the help viewer is installed and where.
#ifndef PLATFORM_HELP_TOOL_H_
#define PLATFORM_HELP_TOOL_H_

#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// Who the viewer is: the ids that the help configuration gives.
struct ViewerIdentity {
  const std::string& app_id;
  const std::string& publisher_id;
};

/// See ITEMInternal::IsZAMRuntimePresent. Runs the tool once.
bool IsZamRuntimePresent(Machine& machine);

/// See ITEMInternal::GetHelpApplicationPath. Runs the tool twice, once when
/// the viewer is not installed. "" also when the tool prints nothing, no
/// ASCII, a path of 1024 bytes or more, or one without an application.
std::string GetHelpApplicationPath(Machine& machine,
                                   const ViewerIdentity& viewer);

}  // namespace velmohelp

#endif  // PLATFORM_HELP_TOOL_H_
