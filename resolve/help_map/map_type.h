// The type of a help map in memory.
#ifndef RESOLVE_HELP_MAP_MAP_TYPE_H_
#define RESOLVE_HELP_MAP_MAP_TYPE_H_

#include <map>
#include <string>

namespace velmohelp {

/// Page id to page. Hosts see one (sHelpMap), so the type is part of the ABI.
using HelpMap = std::map<std::string, std::string>;

}  // namespace velmohelp

#endif  // RESOLVE_HELP_MAP_MAP_TYPE_H_
