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

/// See ITEMInternal::GetHelpApplicationPath. Runs the tool twice, or once when
/// the viewer is not installed. "" also when the tool prints nothing, bytes
/// that are not ASCII, a path of 1024 bytes or more, or the path of something
/// that is not an application.
std::string HelpApplicationPath(Machine& machine, const ViewerIdentity& viewer);

}  // namespace velmohelp

#endif  // PLATFORM_HELP_TOOL_H_
