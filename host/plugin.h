// Loading the help plug-in, as a host application does it.
#ifndef HOST_PLUGIN_H_
#define HOST_PLUGIN_H_

#include <optional>

#include "host/help_module.h"

namespace velmohelp {

/// Loads the plug-in, for good, and finds its entry points. Where it cannot,
/// says why on standard error.
std::optional<LoadEntryPoints> LoadPlugin();

}  // namespace velmohelp

#endif  // HOST_PLUGIN_H_
