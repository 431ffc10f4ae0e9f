// Loading the help plug-in as a host application does.
#ifndef HOST_PLUGIN_H_
#define HOST_PLUGIN_H_

#include <optional>

#include "host/help_module.h"

namespace velmohelp {

/// Loads the plug-in, finds what the module calls, and never unloads it.
/// Prints the reason on standard error when it cannot.
std::optional<Plugin> LoadPlugin();

}  // namespace velmohelp

#endif  // HOST_PLUGIN_H_
